#include "KyPalSwatch.h"

#include <QPainter>
#include <QPixmap>

namespace {

constexpr int kSize = 12;

}  // namespace

QIcon KyPalSwatch::icon(const QColor& color) {
    QPixmap pixmap(kSize, kSize);
    pixmap.fill(color.isValid() ? color : QColor(Qt::transparent));
    QPainter painter(&pixmap);
    painter.setPen(QColor(96, 96, 96));
    painter.drawRect(0, 0, kSize - 1, kSize - 1);
    return QIcon(pixmap);
}
