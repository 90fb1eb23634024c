#pragma once

#include <QDialog>

// The About box: the program's icon, its name and version, and OK.
class CAboutDlg : public QDialog {
    Q_OBJECT

public:
    explicit CAboutDlg(QWidget* parent = nullptr);
};
