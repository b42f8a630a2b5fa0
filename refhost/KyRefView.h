// KyRefView: what a viewport shows, and how it is read from and written to
// the object that holds it. In model space that is a viewport configuration
// record (KyDbViewportTableRecord: its centre, height, width, target,
// direction and lens length); on a layout a viewport entity (its view centre
// and view height, target, direction and lens length; its view is as wide as
// the proportions of its window make it). A named view restores into either.
#pragma once

#include "base/KyroErrorStatus.h"
#include "ge/KyGePoint3d.h"

class KyDbAbstractViewTableRecord;
class KyDbObject;

struct KyRefView {
    KyGePoint3d center;
    double height = 1.0;
    double width = 1.0;
    KyGePoint3d target;
    // From the target to the viewer.
    KyGePoint3d direction{0.0, 0.0, 1.0};
    double lensLength = 50.0;

    // The view a named view or a viewport configuration holds.
    static KyRefView of(const KyDbAbstractViewTableRecord& record);
    // The view `holder` shows; eNotThatKindOfClass for an object that holds
    // no view.
    static Kyro::ErrorStatus read(const KyDbObject* holder, KyRefView& out);
    // Writes the view into `holder`, open for write. A viewport entity takes
    // the height and not the width. The status of the first setter that
    // refuses a value; what came before it stands.
    Kyro::ErrorStatus writeTo(KyDbObject* holder) const;
    // True when this view shows what `record` holds; the width counts only
    // where this view was read from a record.
    bool shows(const KyDbAbstractViewTableRecord& record, bool compareWidth) const;
    // The camera stands at the target plus the direction.
    KyGePoint3d camera() const;
};
