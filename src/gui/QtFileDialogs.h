#pragma once

#include "seams/FileDialogs.h"

#include <QString>

class QWidget;

// The file dialogs as Qt's modal file dialogs.
class QtFileDialogs : public lw::FileDialogs {
public:
    void SetParent(QWidget* parent) { parent_ = parent; }

    bool ShowOpenDialog(const std::string& startFolder, const lw::FileRequest& request,
                        std::string& chosenPath) override;
    bool ShowSaveDialog(const std::string& startFolder, const lw::FileRequest& request,
                        std::string& chosenPath) override;

private:
    QWidget* parent_ = nullptr;
};

// Turns a filter written as "Description (*.ext)|*.ext||" into Qt's form,
// one "Description (*.ext)" per line.
QString QtFilterFromRequest(const std::string& filter);
