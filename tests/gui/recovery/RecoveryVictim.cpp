// The editor in a process of its own, to be killed: it starts on a data
// folder with its recovery copy in a given folder, opens a template, deletes
// a phase through the editor as a user would, says "edited" and waits.
#include "CMainFrame.h"
#include "objects/Phase.h"

#include <QApplication>
#include <QSettings>
#include <cstdio>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc != 6)
        return 2;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, argv[3]);
    CMainFrame frame;
    frame.UseRecovery(argv[2]);
    if (!frame.OnCreate(argv[1]))
        return 2;
    lw::Weaver& weaver = frame.weaver();
    if (!weaver.LoadTemplateFile(argv[4]))
        return 2;
    for (const auto& object : weaver.objects) {
        const auto* phase = lw::As<lw::Phase>(object.get());
        if (phase != nullptr && phase->name == argv[5])
            weaver.selection.Add(object.get());
    }
    weaver.selection.Recalculate();
    weaver.DeleteSelection();
    std::puts("edited");
    std::fflush(stdout);
    return app.exec();
}
