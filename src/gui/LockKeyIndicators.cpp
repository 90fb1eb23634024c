#include "LockKeyIndicators.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

const char* const kWords[] = {"CAP", "NUM", "SCRL"};

#ifndef _WIN32
// Linux shows each keyboard's lights as files "<device>::capslock" and so
// on; a lock counts as on when any keyboard's light is lit.
bool AnyLedLit(const char* suffix) {
    const QDir leds(QStringLiteral("/sys/class/leds"));
    const QStringList names = leds.entryList({QStringLiteral("*::") + suffix}, QDir::Dirs);
    for (const QString& name : names) {
        QFile brightness(leds.filePath(name + QStringLiteral("/brightness")));
        if (brightness.open(QIODevice::ReadOnly) && brightness.readAll().trimmed() != "0")
            return true;
    }
    return false;
}
#endif

} // namespace

bool IsLockOn(LockKey key) {
#ifdef _WIN32
    const int keys[] = {VK_CAPITAL, VK_NUMLOCK, VK_SCROLL};
    return (GetKeyState(keys[static_cast<int>(key)]) & 1) != 0;
#else
    const char* const leds[] = {"capslock", "numlock", "scrolllock"};
    return AnyLedLit(leds[static_cast<int>(key)]);
#endif
}

LockKeyIndicators::LockKeyIndicators(QStatusBar& statusBar, LockReader reader)
    : QObject(&statusBar), reader_(std::move(reader)), timer_(new QTimer(this)) {
    for (int i = 0; i < 3; ++i) {
        labels_[i] = new QLabel(&statusBar);
        labels_[i]->setAlignment(Qt::AlignCenter);
        labels_[i]->setMinimumWidth(labels_[i]->fontMetrics().horizontalAdvance(kWords[i]) + 12);
        statusBar.addPermanentWidget(labels_[i]);
    }
    connect(timer_, &QTimer::timeout, this, &LockKeyIndicators::Refresh);
    timer_->start(500);
    Refresh();
}

void LockKeyIndicators::Refresh() {
    for (int i = 0; i < 3; ++i)
        labels_[i]->setText(reader_(static_cast<LockKey>(i)) ? kWords[i] : QString());
}

QString LockKeyIndicators::Text(LockKey key) const {
    return labels_[static_cast<int>(key)]->text();
}
