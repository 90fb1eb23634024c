// Writes the application's picture as PNG files for the desktop's icon theme:
//   loomwright-icons <folder> <size>...
// makes <folder>/<size>x<size>/apps/loomwright.png for every size.
#include "AppIcon.h"

#include <QDir>
#include <QString>
#include <cstdio>

namespace {

bool WriteIcon(const QString& folder, int size) {
    const QString name = QStringLiteral("%1x%1").arg(size);
    const QString appsFolder = QDir(folder).filePath(name + QStringLiteral("/apps"));
    if (!QDir().mkpath(appsFolder))
        return false;
    return lw::PaintAppIcon(size).save(QDir(appsFolder).filePath(QStringLiteral("loomwright.png")),
                                       "PNG");
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 3) {
        std::fprintf(stderr, "usage: loomwright-icons <folder> <size>...\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    for (int i = 2; i < argc; ++i) {
        bool isNumber = false;
        const int size = QString::fromLocal8Bit(argv[i]).toInt(&isNumber);
        if (!isNumber || size <= 0 || !WriteIcon(folder, size)) {
            std::fprintf(stderr, "loomwright-icons: can't write the icon of size %s\n", argv[i]);
            return 1;
        }
    }
    return 0;
}
