#include "KyRefSysVarAccessors.h"

#include <memory>

#include "KyRefColorText.h"
#include "KyRefDocument.h"
#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefLayoutViewports.h"
#include "KyRefNamedItem.h"
#include "KyRefReadAccess.h"
#include "KyRefReservedWords.h"
#include "KyRefSysVarStore.h"
#include "KyRefTransparencyText.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryIterator.h"
#include "db/KyDbHostApplicationServices.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbScale.h"
#include "rx/KyRxValue.h"

namespace {

using Status = KyRefSysVarStatus;
using Access = KyRefSysVarAccess;

// A write the database refused: no document lock, or a value it would not take.
Status fromDatabase(Kyro::ErrorStatus status, KyString& error) {
    if (status == Kyro::eOk) {
        return Status::kOk;
    }
    if (status == Kyro::eLockViolation) {
        error = L"The drawing is not locked for writing.";
        return Status::kRefused;
    }
    error = L"The drawing refused the value.";
    return Status::kInvalidValue;
}

KyString textOf(const resbuf& value) {
    return KyString(value.resval.rstring).trim();
}

// ---- Current records and dictionary entries, by name

struct CurrentItem {
    const wchar_t* what;  // how a user calls the thing, for messages
    KyDbObjectId (KyDbDatabase::*get)() const;
    Kyro::ErrorStatus (KyDbDatabase::*set)(KyDbObjectId);
    KyDbObjectId (KyDbDatabase::*container)() const;
};

Status getCurrentItem(const Access& access, KyRefResbufPtr& out) {
    const auto* item = static_cast<const CurrentItem*>(access.row.accessor->data);
    KyDbDatabase* db = access.database;
    out = KyRefResbuf::makeString(
        KyRefNamedItem::nameOf((db->*item->container)(), (db->*item->get)()));
    return Status::kOk;
}

Status setCurrentItem(const Access& access, const resbuf& value, KyString& error) {
    const auto* item = static_cast<const CurrentItem*>(access.row.accessor->data);
    KyDbDatabase* db = access.database;
    const KyString name = textOf(value);
    const KyDbObjectId id = KyRefNamedItem::find((db->*item->container)(), name);
    if (id.isNull()) {
        error.format(L"Cannot find %ls \"%ls\".", item->what, name.kwszPtr());
        return Status::kInvalidValue;
    }
    if (id.objectClass() != nullptr &&
        id.objectClass()->isDerivedFrom(KyDbLayerTableRecord::desc())) {
        KyRefReadAccess<KyDbLayerTableRecord> layer(id);
        if (layer && layer->isFrozen()) {
            error.format(L"Cannot set the frozen layer \"%ls\" current.", name.kwszPtr());
            return Status::kInvalidValue;
        }
    }
    return fromDatabase((db->*item->set)(id), error);
}

const CurrentItem kLayerItem{L"layer", &KyDbDatabase::clayer, &KyDbDatabase::setClayer,
                             &KyDbDatabase::layerTableId};
const CurrentItem kLinetypeItem{L"linetype", &KyDbDatabase::celtype, &KyDbDatabase::setCeltype,
                                &KyDbDatabase::linetypeTableId};
const CurrentItem kTextStyleItem{L"text style", &KyDbDatabase::textstyle,
                                 &KyDbDatabase::setTextstyle, &KyDbDatabase::textStyleTableId};
const CurrentItem kDimStyleItem{L"dimension style", &KyDbDatabase::dimstyle,
                                &KyDbDatabase::setDimstyle, &KyDbDatabase::dimStyleTableId};
const CurrentItem kTableStyleItem{L"table style", &KyDbDatabase::tablestyle,
                                  &KyDbDatabase::setTablestyle,
                                  &KyDbDatabase::tableStyleDictionaryId};
const CurrentItem kMLeaderStyleItem{L"multileader style", &KyDbDatabase::mleaderstyle,
                                    &KyDbDatabase::setMLeaderstyle,
                                    &KyDbDatabase::mleaderStyleDictionaryId};
const CurrentItem kMaterialItem{L"material", &KyDbDatabase::cmaterial, &KyDbDatabase::setCmaterial,
                                &KyDbDatabase::materialDictionaryId};
const CurrentItem kDetailViewStyleItem{L"detail view style", &KyDbDatabase::detailViewStyle,
                                       &KyDbDatabase::setDetailViewStyle,
                                       &KyDbDatabase::detailViewStyleDictionaryId};
const CurrentItem kSectionViewStyleItem{L"section view style", &KyDbDatabase::sectionViewStyle,
                                        &KyDbDatabase::setSectionViewStyle,
                                        &KyDbDatabase::sectionViewStyleDictionaryId};

// ---- Typed header values

Status getColor(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeString(KyRefColorText::format(access.database->cecolor()));
    return Status::kOk;
}

Status setColor(const Access& access, const resbuf& value, KyString& error) {
    KyCmColor color;
    if (!KyRefColorText::parse(value.resval.rstring, color)) {
        error.format(L"Invalid color \"%ls\".", textOf(value).kwszPtr());
        return Status::kInvalidValue;
    }
    return fromDatabase(access.database->setCecolor(color), error);
}

Status getTransparency(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeString(KyRefTransparencyText::format(access.database->cetransparency()));
    return Status::kOk;
}

Status setTransparency(const Access& access, const resbuf& value, KyString& error) {
    KyCmTransparency transparency;
    if (!KyRefTransparencyText::parse(value.resval.rstring, transparency)) {
        error.format(L"Requires ByLayer, ByBlock or a transparency from 0 to %d.",
                     KyRefTransparencyText::kMaximumPercent);
        return Status::kOutOfRange;
    }
    return fromDatabase(access.database->setCetransparency(transparency), error);
}

Status getLineweight(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeShort(static_cast<short>(access.database->celweight()));
    return Status::kOk;
}

Status setLineweight(const Access& access, const resbuf& value, KyString& error) {
    return fromDatabase(
        access.database->setCelweight(static_cast<KyDb::LineWeight>(value.resval.rint)), error);
}

Status getShadow(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeShort(static_cast<short>(access.database->cshadow()));
    return Status::kOk;
}

Status setShadow(const Access& access, const resbuf& value, KyString& error) {
    return fromDatabase(
        access.database->setCshadow(static_cast<KyDb::ShadowFlags>(value.resval.rint)), error);
}

// The platform's units of lineweights: 0 inches, anything else millimetres,
// which the variable shows as 1.
Status getLineweightUnits(const Access&, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeShort(gLineWeightUnits == 0 ? 0 : 1);
    return Status::kOk;
}

Status setLineweightUnits(const Access&, const resbuf& value, KyString&) {
    gLineWeightUnits = value.resval.rint;
    return Status::kOk;
}

// Model space shows in the tiled viewport 2; a layout shows its paper space
// viewport 1 until a viewport of it is entered.
Status showFirstViewport(KyDbDatabase* db, KyString& error) {
    const short number =
        db->tilemode() ? KyRefLayoutViewports::kModel : KyRefLayoutViewports::kPaper;
    return fromDatabase(db->setHeaderVar(L"CVPORT", KyRxValue(number)), error);
}

Status showSpace(KyDbDatabase* db, bool model, KyString& error) {
    if (const Status status = fromDatabase(db->setTilemode(model), error); status != Status::kOk) {
        return status;
    }
    return showFirstViewport(db, error);
}

Status getTileMode(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeShort(access.database->tilemode() ? 1 : 0);
    return Status::kOk;
}

Status setTileMode(const Access& access, const resbuf& value, KyString& error) {
    return showSpace(access.database, value.resval.rint != 0, error);
}

Status getPlotStyleMode(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeShort(access.database->plotStyleMode() ? 1 : 0);
    return Status::kOk;
}

// ---- Checked values

Status checkAnnotationScale(const Access& access, const resbuf& value, KyString& error) {
    const KyString name = textOf(value);
    KyRefReadAccess<KyDbDictionary> scales(access.database->scaleListDictionaryId());
    if (scales) {
        for (KyDbDictionaryIterator it(scales.object()); !it.done(); it.next()) {
            KyRefReadAccess<KyDbScale> scale(it.objectId());
            if (scale && scale->scaleName().compareNoCase(name) == 0) {
                return Status::kOk;
            }
        }
    }
    error.format(L"Cannot find scale \"%ls\".", name.kwszPtr());
    return Status::kInvalidValue;
}

Status checkPlotStyle(const Access& access, const resbuf& value, KyString& error) {
    const KyString name = textOf(value);
    if (KyRefReservedWords::matches(name, KyRefReservedWords::kByLayer) ||
        KyRefReservedWords::matches(name, KyRefReservedWords::kByBlock) ||
        !KyRefNamedItem::find(access.database->plotStyleNameDictionaryId(), name).isNull()) {
        return Status::kOk;
    }
    error.format(L"Cannot find plot style \"%ls\".", name.kwszPtr());
    return Status::kInvalidValue;
}

// ---- The current layout

KyString layoutName(KyDbObjectId layoutId) {
    KyRefReadAccess<KyDbLayout> layout(layoutId);
    return layout ? layout->layoutName() : KyString();
}

Status getLayout(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeString(layoutName(kydbCurrentLayoutId(access.database)));
    return Status::kOk;
}

Status setLayout(const Access& access, const resbuf& value, KyString& error) {
    const KyString name = textOf(value);
    KyRefReadAccess<KyDbDictionary> layouts(access.database->layoutDictionaryId());
    KyDbObjectId layoutId;
    if (layouts) {
        for (KyDbDictionaryIterator it(layouts.object()); !it.done() && layoutId.isNull();
             it.next()) {
            KyRefReadAccess<KyDbLayout> layout(it.objectId());
            if (layout && layout->layoutName().compareNoCase(name) == 0) {
                layoutId = it.objectId();
            }
        }
    }
    if (layoutId.isNull()) {
        error.format(L"Cannot find layout \"%ls\".", name.kwszPtr());
        return Status::kInvalidValue;
    }
    if (const Status status =
            fromDatabase(kydbSetCurrentLayoutId(access.database, layoutId), error);
        status != Status::kOk) {
        return status;
    }
    return showFirstViewport(access.database, error);
}

// ---- The current viewport

Status getViewport(const Access& access, KyRefResbufPtr& out) {
    out = KyRefResbuf::makeShort(KyRefLayoutViewports::currentNumber(access.database));
    return Status::kOk;
}

// Model space has its one tiled viewport; a layout its paper and the
// viewports that can be entered.
Status checkViewport(const Access& access, const resbuf& value, KyString& error) {
    KyDbDatabase* db = access.database;
    const short number = value.resval.rint;
    if (db->tilemode()) {
        if (number == KyRefLayoutViewports::kModel) {
            return Status::kOk;
        }
        error.format(L"Model space shows viewport %d only.", KyRefLayoutViewports::kModel);
        return Status::kInvalidValue;
    }
    if (number == KyRefLayoutViewports::kPaper) {
        return Status::kOk;
    }
    const KyDbObjectId id = KyRefLayoutViewports::numbered(db, number);
    if (id.isNull()) {
        error.format(L"The layout has no viewport %d.", static_cast<int>(number));
        return Status::kInvalidValue;
    }
    short entered = 0;
    return KyRefLayoutViewports::checkEntry(db, id, entered, error) == Kyro::eOk
               ? Status::kOk
               : Status::kInvalidValue;
}

// ---- Computed by the host

Status getCommandNames(const Access& access, KyRefResbufPtr& out) {
    KyRefHost* host = access.store != nullptr ? access.store->host() : nullptr;
    out = KyRefResbuf::makeString(host != nullptr ? host->commandNames() : KyString());
    return Status::kOk;
}

Status getDrawingName(const Access& access, KyRefResbufPtr& out) {
    KyRefHost* host = access.store != nullptr ? access.store->host() : nullptr;
    const KyRefDocument* document = host != nullptr ? host->documents().current() : nullptr;
    if (document == nullptr) {
        return Status::kNoDocument;
    }
    out = KyRefResbuf::makeString(document->name());
    return Status::kOk;
}

}  // namespace

namespace KyRefSysVarAccessors {

const KyRefSysVarAccessor kLayer{getCurrentItem, nullptr, setCurrentItem, &kLayerItem};
const KyRefSysVarAccessor kLinetype{getCurrentItem, nullptr, setCurrentItem, &kLinetypeItem};
const KyRefSysVarAccessor kTextStyle{getCurrentItem, nullptr, setCurrentItem, &kTextStyleItem};
const KyRefSysVarAccessor kDimStyle{getCurrentItem, nullptr, setCurrentItem, &kDimStyleItem};
const KyRefSysVarAccessor kTableStyle{getCurrentItem, nullptr, setCurrentItem, &kTableStyleItem};
const KyRefSysVarAccessor kMLeaderStyle{getCurrentItem, nullptr, setCurrentItem,
                                        &kMLeaderStyleItem};
const KyRefSysVarAccessor kMaterial{getCurrentItem, nullptr, setCurrentItem, &kMaterialItem};
const KyRefSysVarAccessor kDetailViewStyle{getCurrentItem, nullptr, setCurrentItem,
                                           &kDetailViewStyleItem};
const KyRefSysVarAccessor kSectionViewStyle{getCurrentItem, nullptr, setCurrentItem,
                                            &kSectionViewStyleItem};

const KyRefSysVarAccessor kColor{getColor, nullptr, setColor};
const KyRefSysVarAccessor kTransparency{getTransparency, nullptr, setTransparency};
const KyRefSysVarAccessor kLineweight{getLineweight, nullptr, setLineweight};
const KyRefSysVarAccessor kShadow{getShadow, nullptr, setShadow};
const KyRefSysVarAccessor kLineweightUnits{getLineweightUnits, nullptr, setLineweightUnits};
const KyRefSysVarAccessor kTileMode{getTileMode, nullptr, setTileMode};
const KyRefSysVarAccessor kPlotStyleMode{getPlotStyleMode, nullptr, nullptr};

const KyRefSysVarAccessor kAnnotationScale{nullptr, checkAnnotationScale, nullptr};
const KyRefSysVarAccessor kPlotStyle{nullptr, checkPlotStyle, nullptr};

const KyRefSysVarAccessor kLayout{getLayout, nullptr, setLayout};
const KyRefSysVarAccessor kViewport{getViewport, checkViewport, nullptr};

const KyRefSysVarAccessor kCommandNames{getCommandNames, nullptr, nullptr};
const KyRefSysVarAccessor kDrawingName{getDrawingName, nullptr, nullptr};

}  // namespace KyRefSysVarAccessors
