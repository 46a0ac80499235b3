// The application object of the window program.
#pragma once

#include <QApplication>
#include <QFont>

namespace zifferon {

// It looks the same on every desktop, as the program brings its own colours, and it ends when the program
// ends it, not with its last window.
class Application : public QApplication {
  public:
    Application(int& argc, char** argv);
};

// The font of boxes and menus.
QFont boxFont();

}  // namespace zifferon
