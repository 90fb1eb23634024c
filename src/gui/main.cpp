#include "CLoomwrightApp.h"
#include "DisplayCheck.h"

#include <cstdio>

int main(int argc, char** argv) {
    const QString missingDisplay = MissingDisplayMessage();
    if (!missingDisplay.isEmpty()) {
        std::fprintf(stderr, "%s\n", missingDisplay.toLocal8Bit().constData());
        return 1;
    }
    CLoomwrightApp app(argc, argv);
    if (!app.InitInstance())
        return 1;
    return app.exec();
}
