// The floor that the start is measured against: an empty window with one text field.

#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>

#include "bench/first_window.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    FirstWindow first(argv[1], {QStringLiteral("empty")});
    QWidget window;
    window.setWindowTitle(QStringLiteral("empty"));
    QVBoxLayout layout(&window);
    QLineEdit field;
    layout.addWidget(&field);
    window.resize(547, 539);
    window.show();
    return QApplication::exec();
}
