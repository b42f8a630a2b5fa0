// KyPalSwatch: the small square that shows a colour in the palette's lists,
// framed so that a white or a very light colour still shows on a light row.
#pragma once

#include <QColor>
#include <QIcon>

class KyPalSwatch {
public:
    // The swatch of `color`; an empty frame for an invalid colour.
    static QIcon icon(const QColor& color);
};
