// make_pictures de|en FOLDER: takes the pictures of the guide from the windows of the program itself.

#include <QDir>
#include <QTemporaryDir>
#include <string_view>
#include <utility>

#include "core/number_format.h"
#include "platform/qt/application.h"
#include "platform/qt/form_view.h"
#include "platform/qt/qt_machine.h"
#include "shell/program.h"

namespace {

using namespace zifferon;

class Photographer {
  public:
    Photographer(Language language, QString folder) : folder_(std::move(folder)) {
        CalculatorState& s = program_.pultform.state;
        s.language = language;
        s.decimalPointStyle = language == Language::english ? 1 : 0;
        applyFormatMode(s);
        program_.beginFresh();
    }

    void type(TextView characters) {
        for (const char16_t character : characters) program_.keys.stroke(keyOfCharacter(character));
    }

    // Whether the picture is written.
    bool takeAll() {
        type(u"12,50+3*4\r\r");
        bool all = take(view_, "window");
        for (const char* name : {"narrow", "strip"}) {
            program_.keys.stroke({keyCode::f2});
            all = take(view_, name) && all;
        }
        program_.keys.stroke({keyCode::f2});
        program_.keys.run(program_.pultform.page.edit.onClick);
        all = take(view_, "page") && all;
        program_.kopf.muster.click();
        program_.kopf.visible = true;
        KeyRoad keys(program_.kopf, [] {});
        FormView letterhead(program_.kopf, keys);
        return take(letterhead, "letterhead") && all;
    }

  private:
    bool take(FormView& view, const char* name) {
        view.refresh();
        return view.grab().save(folder_ + '/' + QLatin1String(name) + QStringLiteral(".png"));
    }

    QString folder_;
    QtMachine qt_;
    Program program_{qt_.machine};
    FormView view_{program_.pultform, program_.keys};
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    const QString folder = QDir(QString::fromLocal8Bit(argv[2])).absolutePath();
    const QTemporaryDir programFolder;
    if (!QDir().mkpath(folder) || !QDir::setCurrent(programFolder.path())) return 1;
    const bool english = std::string_view(argv[1]) == "en";
    return Photographer(english ? Language::english : Language::german, folder).takeAll() ? 0 : 1;
}
