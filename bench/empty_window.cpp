// The floor that the start is measured against: an empty window with one text field. With the moment of its
// start it measures itself and ends; without, it stays.

#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>
#include <optional>

#include "bench/first_window.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    std::optional<FirstWindow> first;
    if (argc > 1) first.emplace(argv[1], QStringList{QStringLiteral("empty")});
    QWidget window;
    window.setWindowTitle(QStringLiteral("empty"));
    QVBoxLayout layout(&window);
    QLineEdit field;
    layout.addWidget(&field);
    window.resize(547, 539);
    window.show();
    return QApplication::exec();
}
