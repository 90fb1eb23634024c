#include "QtSurfaceValues.h"

#include <algorithm>

namespace lw {

QColor ToQColor(Rgb colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

QPen ToQPen(const Pen& pen) {
    QPen result(ToQColor(pen.colour), pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (pen.style == PenStyle::Dash) {
        // Long dashes with short gaps, in pixels, whatever the width.
        const qreal width = std::max(1, pen.width);
        result.setDashPattern({18 / width, 6 / width});
    }
    return result;
}

QFont ToQFont(const CanvasFont& font) {
    static const bool substituted = [] {
        QFont::insertSubstitution(QStringLiteral("Arial"), QStringLiteral("Liberation Sans"));
        return true;
    }();
    (void)substituted;
    QFont result(QString::fromStdString(font.family));
    result.setStyleHint(QFont::SansSerif);
    result.setPixelSize(std::max(1, font.height));
    result.setWeight(static_cast<QFont::Weight>(std::clamp(font.weight, 1, 1000)));
    return result;
}

int ToQtTextFlags(unsigned flags) {
    int result = Qt::AlignLeft;
    if ((flags & TextCentre) != 0)
        result = Qt::AlignHCenter;
    else if ((flags & TextRight) != 0)
        result = Qt::AlignRight;
    if ((flags & TextVerticalCentre) != 0)
        result |= Qt::AlignVCenter;
    else if ((flags & TextBottom) != 0)
        result |= Qt::AlignBottom;
    else
        result |= Qt::AlignTop;
    if ((flags & TextSingleLine) != 0)
        result |= Qt::TextSingleLine;
    if ((flags & TextNoClip) != 0)
        result |= Qt::TextDontClip;
    return result;
}

QRect ToTextBox(const ScreenRect& rect) {
    return QRect(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top);
}

QRect ToOutlineRect(const ScreenRect& rect) {
    return QRect(rect.left, rect.top, rect.right - rect.left - 1, rect.bottom - rect.top - 1);
}

QString ToText(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace lw
