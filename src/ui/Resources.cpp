// The icons compiled into the library. A static library's resources are not registered on
// their own (the linker drops their initialiser), so the first icon asked for registers them.
#include <QtGlobal>

#include "ui/UiText.h"

static void RegisterUiResources() {
    Q_INIT_RESOURCE(ui);
}

namespace iw::ui {

void EnsureUiResources() {
    static const bool registered = [] {
        RegisterUiResources();
        return true;
    }();
    (void)registered;
}

}  // namespace iw::ui
