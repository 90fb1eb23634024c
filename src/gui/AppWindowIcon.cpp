#include "AppWindowIcon.h"

#include "AppIcon.h"

#include <QPixmap>

QIcon AppWindowIcon() {
    QIcon icon;
    for (int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addPixmap(QPixmap::fromImage(lw::PaintAppIcon(size)));
    return icon;
}
