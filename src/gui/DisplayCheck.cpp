#include "DisplayCheck.h"

#include <QtGlobal>

QString MissingDisplayMessage() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    const bool platformChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    const bool hasDisplay =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    if (!platformChosen && !hasDisplay) {
        return QStringLiteral("Loomwright needs a graphical display, and none was found "
                              "(DISPLAY and WAYLAND_DISPLAY are unset): run it on a desktop "
                              "or under xvfb-run.");
    }
#endif
    return QString();
}
