#pragma once

#include "objects/ViewTransform.h"

#include <QFont>
#include <QWidget>

// The canvas window. It keeps the view's offset (in world units) and scale,
// and paints the template on a white ground inside a one-pixel black frame.
class CChildView : public QWidget, public lw::ViewTransform {
    Q_OBJECT

public:
    explicit CChildView(QWidget* parent = nullptr);

    QFont font;

protected:
    void paintEvent(QPaintEvent* event) override;
};
