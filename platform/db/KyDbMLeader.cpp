#include "db/KyDbMLeader.h"

#include "db/KyDbClassSupport.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbStateFiler.h"

namespace {

const KyDbPropertyRow kMLeaderRows[] = {
    {L"MLeaderStyleId",
     kydbiAccess<&KyDbMLeader::MLeaderStyle,
                 kydbiSetter<KyDbMLeader, KyDbObjectId>(&KyDbMLeader::setMLeaderStyle)>(),
     KyDbCategory::kMisc, 0, L"/MLeaderStyleDictionaryId/Items"},
    {L"TextString", kydbiAccess<&KyDbMLeader::contents, &KyDbMLeader::setContents>(),
     KyDbCategory::kText, 1},
    {L"TextStyleId", kydbiAccess<&KyDbMLeader::textStyleId>(), KyDbCategory::kText, 2,
     L"/TextStyleTableId/Items"},
    {L"Points",
     {},
     KyDbCategory::kGeometry,
     1,
     nullptr,
     &kydbiPointList<KyDbMLeader, &KyDbMLeader::points, &KyDbMLeader::setPointAt>},
};

}  // namespace

KYDB_DEFINE_ENTITY(KyDbMLeader, KyDbEntity, kMLeaderRows, L"MLEADER")

KyDbMLeader::KyDbMLeader() = default;

KyDbMLeader::~KyDbMLeader() = default;

Kyro::ErrorStatus KyDbMLeader::setMLeaderStyle(KyDbObjectId styleId) {
    return setReference(m_style, styleId, KyDbMLeaderStyle::desc());
}

Kyro::ErrorStatus KyDbMLeader::setMLeaderStyle(const wchar_t* styleName) {
    return setReference(m_style, styleName, &KyDbDatabase::mleaderStyleDictionaryId,
                        KyDbMLeaderStyle::desc());
}

KyDbObjectId KyDbMLeader::textStyleId() const {
    // Read through the id: the style may be open elsewhere, and this is a read.
    const auto* style =
        m_style.isValid() ? kyrxCast<KyDbMLeaderStyle>(m_style.stub()->object) : nullptr;
    return style != nullptr ? style->textStyleId() : KyDbObjectId();
}

Kyro::ErrorStatus KyDbMLeader::setPoints(const KyArray<KyGePoint3d>& points) {
    return setMember(m_points, points);
}

Kyro::ErrorStatus KyDbMLeader::setPointAt(int index, const KyGePoint3d& point) {
    return setPointIn(m_points, index, point);
}

Kyro::ErrorStatus KyDbMLeader::setContents(const wchar_t* contents) {
    return setMember(m_contents, KyString(contents));
}

void KyDbMLeader::subAppended(KyDbDatabase* database) {
    KyDbEntity::subAppended(database);
    if (m_style.isNull()) {
        m_style = database->mleaderstyle();
    }
}

void KyDbMLeader::subSaveState(KyDbStateFiler& filer) const {
    KyDbEntity::subSaveState(filer);
    filer.write(m_style);
    filer.writeArray(m_points);
    filer.writeString(m_contents);
}

Kyro::ErrorStatus KyDbMLeader::subRestoreState(KyDbStateFiler& filer) {
    if (const Kyro::ErrorStatus status = KyDbEntity::subRestoreState(filer); status != Kyro::eOk) {
        return status;
    }
    filer.read(m_style);
    filer.readArray(m_points);
    filer.read(m_contents);
    return filer.status();
}
