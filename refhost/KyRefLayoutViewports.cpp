#include "KyRefLayoutViewports.h"

#include <memory>

#include "KyRefReadAccess.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbBlockTableRecordIterator.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayout.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewport.h"
#include "db/KyDbViewportTableRecord.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxValue.h"

namespace {

constexpr const wchar_t* kActiveName = L"*Active";

// CVPORT as the header holds it: a short when the host wrote it, an integer
// when a file gave it; `otherwise` when it holds neither.
int storedNumber(const KyDbDatabase* database, int otherwise) {
    KyRxValue value;
    if (database->getHeaderVar(L"CVPORT", value) != Kyro::eOk) {
        return otherwise;
    }
    if (const auto* small = valueCast<short>(&value)) {
        return *small;
    }
    if (const auto* number = valueCast<int>(&value)) {
        return *number;
    }
    return otherwise;
}

bool isViewport(KyDbObjectId id) {
    return KyRxClass::isDerivedFrom(id.objectClass(), KyDbViewport::desc());
}

// Adds the active configuration "*Active" to a drawing that lacks it, with
// the default view; answers its id.
Kyro::ErrorStatus addActiveRecord(KyDbDatabase* database, KyDbObjectId& id) {
    KyDbObjectPointer<KyDbSymbolTable> viewports(database->viewportTableId(), KyDb::kForWrite);
    if (!viewports) {
        return viewports.openStatus();
    }
    auto record = std::make_unique<KyDbViewportTableRecord>();
    record->setName(kActiveName);
    if (const Kyro::ErrorStatus status = viewports->add(id, record.get()); status != Kyro::eOk) {
        return status;
    }
    return record.release()->close();
}

}  // namespace

KyDbObjectId KyRefLayoutViewports::shownPaperBlock(KyDbDatabase* database) {
    if (database == nullptr || database->tilemode()) {
        return KyDbObjectId();
    }
    KyRefReadAccess<KyDbLayout> layout(kydbCurrentLayoutId(database));
    return layout ? layout->getBlockTableRecordId() : KyDbObjectId();
}

KyDbObjectId KyRefLayoutViewports::numbered(KyDbDatabase* database, int number) {
    KyRefReadAccess<KyDbBlockTableRecord> block(shownPaperBlock(database));
    if (!block || number < kPaper) {
        return KyDbObjectId();
    }
    // Counted through the ids, as KyDbViewport::number counts: erased
    // entities are passed over, other entities don't count.
    KyDbBlockTableRecordIterator it(block.object());
    int count = 0;
    for (it.start(true, true); !it.done(); it.step(true, true)) {
        KyDbObjectId id;
        it.getEntityId(id);
        if (isViewport(id) && ++count == number) {
            return id;
        }
    }
    return KyDbObjectId();
}

short KyRefLayoutViewports::currentNumber(KyDbDatabase* database) {
    if (database == nullptr) {
        return kModel;
    }
    if (database->tilemode()) {
        // Whatever the drawing holds: model space has no paper to fall back on.
        return static_cast<short>(storedNumber(database, kModel));
    }
    const int stored = storedNumber(database, kPaper);
    if (stored <= kPaper || stored > 32767) {
        return kPaper;
    }
    KyRefReadAccess<KyDbViewport> viewport(numbered(database, stored));
    return viewport && viewport->isOn() ? static_cast<short>(stored) : kPaper;
}

KyDbObjectId KyRefLayoutViewports::entered(KyDbDatabase* database) {
    if (database == nullptr || database->tilemode()) {
        return KyDbObjectId();
    }
    const short number = currentNumber(database);
    return number > kPaper ? numbered(database, number) : KyDbObjectId();
}

KyDbObjectId KyRefLayoutViewports::viewHolder(KyDbDatabase* database) {
    if (database == nullptr) {
        return KyDbObjectId();
    }
    if (database->tilemode()) {
        return activeRecord(database);
    }
    const KyDbObjectId id = entered(database);
    return !id.isNull() ? id : numbered(database, kPaper);
}

Kyro::ErrorStatus KyRefLayoutViewports::makeViewHolder(KyDbDatabase* database, KyDbObjectId& id) {
    id = viewHolder(database);
    if (!id.isNull()) {
        return Kyro::eOk;
    }
    if (database == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    return database->tilemode() ? addActiveRecord(database, id) : Kyro::eNotApplicable;
}

Kyro::ErrorStatus KyRefLayoutViewports::openViewHolder(KyDbDatabase* database,
                                                       KyDbObjectPointer<KyDbObject>& holder) {
    KyDbObjectId id;
    if (const Kyro::ErrorStatus status = makeViewHolder(database, id); status != Kyro::eOk) {
        return status;
    }
    return holder.open(id, KyDb::kForWrite);
}

KyDbObjectId KyRefLayoutViewports::activeRecord(KyDbDatabase* database) {
    KyDbObjectId id;
    if (database != nullptr) {
        KyRefReadAccess<KyDbSymbolTable> viewports(database->viewportTableId());
        if (viewports) {
            viewports->getAt(kActiveName, id);
        }
    }
    return id;
}

Kyro::ErrorStatus KyRefLayoutViewports::checkEntry(KyDbDatabase* database, KyDbObjectId id,
                                                   short& number, KyString& reason) {
    if (database == nullptr) {
        reason = L"No drawing is open.";
        return Kyro::eNoCurrentDocument;
    }
    if (id.isNull()) {
        reason = L"No viewport was given.";
        return Kyro::eNullObjectId;
    }
    if (id.database() != database || !id.isValid()) {
        reason = L"The viewport is not in the current drawing.";
        return Kyro::eWrongDatabase;
    }
    if (id.isErased()) {
        reason = L"The viewport is erased.";
        return Kyro::eWasErased;
    }
    if (!isViewport(id)) {
        reason = L"The object is not a viewport.";
        return Kyro::eNotThatKindOfClass;
    }
    KyRefReadAccess<KyDbViewport> viewport(id);
    if (!viewport) {
        reason = L"The viewport can't be read.";
        return viewport.status();
    }
    const KyDbObjectId block = shownPaperBlock(database);
    if (block.isNull() || viewport->ownerId() != block) {
        reason = L"The viewport is not on the layout shown.";
        return Kyro::eNotApplicable;
    }
    if (viewport->isPaperViewport()) {
        reason = L"The paper viewport can't be entered.";
        return Kyro::eInvalidInput;
    }
    if (!viewport->isOn()) {
        reason = L"The viewport is off.";
        return Kyro::eNotApplicable;
    }
    number = static_cast<short>(viewport->number());
    return Kyro::eOk;
}
