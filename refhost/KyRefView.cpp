#include "KyRefView.h"

#include <cmath>

#include "db/KyDbAbstractViewTableRecord.h"
#include "db/KyDbViewport.h"
#include "rx/KyRxClass.h"

namespace {

constexpr double kTolerance = 1e-9;

bool same(double a, double b) {
    return std::fabs(a - b) <= kTolerance;
}

// Runs the setters in order and stops at the first refusal.
template <typename... Status>
Kyro::ErrorStatus firstRefusal(Status... statuses) {
    Kyro::ErrorStatus result = Kyro::eOk;
    ((result = result == Kyro::eOk ? statuses() : result), ...);
    return result;
}

}  // namespace

KyRefView KyRefView::of(const KyDbAbstractViewTableRecord& record) {
    KyRefView view;
    view.center = record.centerPoint();
    view.height = record.height();
    view.width = record.width();
    view.target = record.target();
    view.direction = record.viewDirection();
    view.lensLength = record.lensLength();
    return view;
}

Kyro::ErrorStatus KyRefView::read(const KyDbObject* holder, KyRefView& out) {
    if (const auto* record = kyrxCast<KyDbAbstractViewTableRecord>(holder)) {
        out = of(*record);
        return Kyro::eOk;
    }
    const auto* viewport = kyrxCast<KyDbViewport>(holder);
    if (viewport == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    out.center = viewport->viewCenter();
    out.height = viewport->viewHeight();
    out.width = viewport->viewHeight() * viewport->width() / viewport->height();
    out.target = viewport->viewTarget();
    out.direction = viewport->viewDirection();
    out.lensLength = viewport->lensLength();
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefView::writeTo(KyDbObject* holder) const {
    if (auto* record = kyrxCast<KyDbAbstractViewTableRecord>(holder)) {
        return firstRefusal([&] { return record->setCenterPoint(center); },
                            [&] { return record->setHeight(height); },
                            [&] { return record->setWidth(width); },
                            [&] { return record->setTarget(target); },
                            [&] { return record->setViewDirection(direction); },
                            [&] { return record->setLensLength(lensLength); });
    }
    auto* viewport = kyrxCast<KyDbViewport>(holder);
    if (viewport == nullptr) {
        return Kyro::eNotThatKindOfClass;
    }
    return firstRefusal([&] { return viewport->setViewCenter(center); },
                        [&] { return viewport->setViewHeight(height); },
                        [&] { return viewport->setViewTarget(target); },
                        [&] { return viewport->setViewDirection(direction); },
                        [&] { return viewport->setLensLength(lensLength); });
}

bool KyRefView::shows(const KyDbAbstractViewTableRecord& record, bool compareWidth) const {
    return record.centerPoint() == center && same(record.height(), height) &&
           (!compareWidth || same(record.width(), width)) && record.target() == target &&
           record.viewDirection() == direction && same(record.lensLength(), lensLength);
}

KyGePoint3d KyRefView::camera() const {
    return KyGePoint3d(target.x + direction.x, target.y + direction.y, target.z + direction.z);
}
