#pragma once
// The splash window shown while the main window starts: the program's icon and name.

#include <QSplashScreen>

namespace iw::ui {

class SplashScreen final : public QSplashScreen {
    Q_OBJECT

  public:
    SplashScreen();
};

}  // namespace iw::ui
