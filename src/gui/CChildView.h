#pragma once

#include <QFont>
#include <QWidget>

// The canvas window. It keeps the view's offset (in world units) and scale,
// and paints the template on a white ground inside a one-pixel black frame.
class CChildView : public QWidget {
    Q_OBJECT

public:
    explicit CChildView(QWidget* parent = nullptr);

    int viewX = 0;
    int viewY = 0;
    float scale = 1.0f;
    QFont font;

protected:
    void paintEvent(QPaintEvent* event) override;
};
