#pragma once

#include <QObject>
#include <functional>

class QLabel;
class QStatusBar;
class QTimer;

enum class LockKey { Caps, Num, Scroll };

// Whether the keyboard's lock is on, as its light shows it; false where the
// platform does not tell.
bool IsLockOn(LockKey key);

// The status bar's panes for caps lock, num lock and scroll lock: each shows
// its word while its lock is on and stays blank, keeping its width, while it
// is off. Qt has no event for a lock that changes while another program has
// the keyboard, so the panes look again twice a second.
class LockKeyIndicators : public QObject {
    Q_OBJECT

public:
    using LockReader = std::function<bool(LockKey)>;

    LockKeyIndicators(QStatusBar& statusBar, LockReader reader = IsLockOn);

    void Refresh();
    QString Text(LockKey key) const;

private:
    QLabel* labels_[3];
    LockReader reader_;
    QTimer* timer_;
};
