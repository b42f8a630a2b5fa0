#include "db/KyDbViewCallout.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDetailViewStyle.h"
#include "db/KyDbRecordReference.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kViewCalloutRows[] = {
    {L"CalloutKind", kydbiAccess<&KyDbViewCallout::kind, &KyDbViewCallout::setKind>(),
     KyDbCategory::kMisc, 0},
    {L"ViewStyleId",
     kydbiAccess<&KyDbViewCallout::viewStyle,
                 kydbiSetter<KyDbViewCallout, KyDbObjectId>(&KyDbViewCallout::setViewStyle)>(),
     KyDbCategory::kMisc, 1},
    {L"Label", kydbiAccess<&KyDbViewCallout::label, &KyDbViewCallout::setLabel>(),
     KyDbCategory::kText, 1},
    {L"Points",
     {},
     KyDbCategory::kGeometry,
     1,
     nullptr,
     &kydbiPointList<KyDbViewCallout, &KyDbViewCallout::points, &KyDbViewCallout::setPointAt>},
};

bool isKind(int kind) {
    return kind == KyDbViewCallout::kSection || kind == KyDbViewCallout::kDetail;
}

}  // namespace

KYDB_DEFINE_ENTITY(KyDbViewCallout, KyDbEntity, kViewCalloutRows, L"VIEWCALLOUT")

KyDbViewCallout::KyDbViewCallout() = default;

KyDbViewCallout::~KyDbViewCallout() = default;

const KyRxClass* KyDbViewCallout::styleClass(int kind) {
    switch (kind) {
        case kSection:
            return KyDbSectionViewStyle::desc();
        case kDetail:
            return KyDbDetailViewStyle::desc();
        default:
            return nullptr;
    }
}

KyDbObjectId KyDbViewCallout::styleDictionaryId(const KyDbDatabase* database, int kind) {
    if (database == nullptr) {
        return KyDbObjectId();
    }
    switch (kind) {
        case kSection:
            return database->sectionViewStyleDictionaryId();
        case kDetail:
            return database->detailViewStyleDictionaryId();
        default:
            return KyDbObjectId();
    }
}

bool KyDbViewCallout::isStyleOfKind(KyDbObjectId styleId, int kind) {
    const KyRxClass* wanted = styleClass(kind);
    if (wanted == nullptr || !styleId.isValid() ||
        !KyRxClass::isDerivedFrom(styleId.objectClass(), wanted)) {
        return false;
    }
    // Read through the id: the style may be open elsewhere, and this is a read.
    const KyDbObjectId owner = styleId.stub()->object->ownerId();
    return !owner.isNull() && owner == styleDictionaryId(styleId.database(), kind);
}

KyDbObjectId KyDbViewCallout::currentStyle(const KyDbDatabase* database, int kind) {
    if (database == nullptr) {
        return KyDbObjectId();
    }
    return kind == kDetail ? database->detailViewStyle() : database->sectionViewStyle();
}

Kyro::ErrorStatus KyDbViewCallout::setKind(int kind) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (!isKind(kind)) {
        return Kyro::eInvalidInput;
    }
    if (kind == m_kind) {
        return Kyro::eOk;
    }
    assertWriteEnabled();
    m_kind = kind;
    if (!m_style.isNull() && !isStyleOfKind(m_style, kind)) {
        m_style = currentStyle(database(), kind);
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyDbViewCallout::setViewStyle(KyDbObjectId styleId) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status =
            KyDbRecordReference::check(this, styleId, styleClass(m_kind));
        status != Kyro::eOk) {
        return status;
    }
    // Of the right class, but kept outside the dictionary of its kind.
    if (!isStyleOfKind(styleId, m_kind)) {
        return Kyro::eNotThatKindOfClass;
    }
    return setMember(m_style, styleId);
}

Kyro::ErrorStatus KyDbViewCallout::setViewStyle(const wchar_t* styleName) {
    if (const Kyro::ErrorStatus status = checkWritable(); status != Kyro::eOk) {
        return status;
    }
    KyDbObjectId id;
    const auto dictionary = m_kind == kDetail ? &KyDbDatabase::detailViewStyleDictionaryId
                                              : &KyDbDatabase::sectionViewStyleDictionaryId;
    if (const Kyro::ErrorStatus status =
            KyDbRecordReference::findNamed(this, dictionary, styleName, id);
        status != Kyro::eOk) {
        return status;
    }
    return setViewStyle(id);
}

Kyro::ErrorStatus KyDbViewCallout::setPoints(const KyArray<KyGePoint3d>& points) {
    return setMember(m_points, points);
}

Kyro::ErrorStatus KyDbViewCallout::setPointAt(int index, const KyGePoint3d& point) {
    return setPointIn(m_points, index, point);
}

Kyro::ErrorStatus KyDbViewCallout::setLabel(const wchar_t* label) {
    return setMember(m_label, KyString(label));
}

void KyDbViewCallout::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    if (m_style.isNull()) {
        m_style = currentStyle(database, m_kind);
    }
}

void KyDbViewCallout::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_kind);
    filer.write(m_style);
    filer.writeArray(m_points);
    filer.writeString(m_label);
}

Kyro::ErrorStatus KyDbViewCallout::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_kind);
    filer.read(m_style);
    filer.readArray(m_points);
    filer.read(m_label);
    return filer.status();
}
