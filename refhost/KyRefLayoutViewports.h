// KyRefLayoutViewports: the viewports of the layout a drawing shows, and which
// of them holds the view shown. Model space (TILEMODE 1) is shown in one tiled
// viewport, viewport 2, whose view the active configuration "*Active" of the
// viewport table holds. A paper layout shows its paper, viewport 1 (the first
// viewport entity of its block), until the user enters another of its
// viewports: CVPORT then holds that viewport's number (KyDbViewport::number).
// A stored number that names no viewport that is on (it was erased or turned
// off since) stands for the paper.
#pragma once

#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "db/KyDbObjectId.h"
#include "db/KyDbObjectPointer.h"

class KyDbDatabase;

class KyRefLayoutViewports {
public:
    static constexpr short kPaper = 1;
    static constexpr short kModel = 2;

    // CVPORT as the drawing shows it: in model space the number the drawing
    // holds (2 unless it holds another); on a layout the number the drawing
    // holds when it names the paper or a viewport of the layout that is on,
    // 1 otherwise.
    static short currentNumber(KyDbDatabase* database);
    // The viewport entity the user entered; null on the paper and in model
    // space.
    static KyDbObjectId entered(KyDbDatabase* database);
    // The object that holds the view shown: "*Active" in model space, on a
    // layout the viewport entered, or else the paper viewport. Null when the
    // drawing has none.
    static KyDbObjectId viewHolder(KyDbDatabase* database);
    // The view holder, for a change: in model space the active configuration
    // is added when the drawing lacks it. eNotApplicable on a layout without
    // a viewport. The caller holds the document's lock.
    static Kyro::ErrorStatus makeViewHolder(KyDbDatabase* database, KyDbObjectId& id);
    // makeViewHolder, and the holder opened for write into `holder`.
    static Kyro::ErrorStatus openViewHolder(KyDbDatabase* database,
                                            KyDbObjectPointer<KyDbObject>& holder);
    // The active configuration "*Active" of the viewport table; null when the
    // drawing has none.
    static KyDbObjectId activeRecord(KyDbDatabase* database);
    // eOk when the user can enter `id`: a viewport entity of the layout shown,
    // other than the paper, not erased, and on; `number` gets its number.
    // Otherwise the status, with `reason` as the user reads it.
    static Kyro::ErrorStatus checkEntry(KyDbDatabase* database, KyDbObjectId id, short& number,
                                        KyString& reason);
    // The viewport entity `number` of the paper layout shown (erased ones not
    // counted); null in model space and when there is none.
    static KyDbObjectId numbered(KyDbDatabase* database, int number);

private:
    // The block of the paper layout shown; null in model space.
    static KyDbObjectId shownPaperBlock(KyDbDatabase* database);
};
