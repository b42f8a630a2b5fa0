#include "db/KyDbHeader.h"

#include "db/KyCmColor.h"
#include "db/KyCmTransparency.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbEnums.h"

namespace {

using Kind = KyDbHeader::Kind;

// The variables the database types and checks.
const KyDbHeader::Row kRows[] = {
    {L"CLAYER", Kind::kObjectId, &KyDbDatabase::layerTableId, false},
    {L"CELTYPE", Kind::kObjectId, &KyDbDatabase::linetypeTableId, false},
    {L"TEXTSTYLE", Kind::kObjectId, &KyDbDatabase::textStyleTableId, false},
    {L"DIMSTYLE", Kind::kObjectId, &KyDbDatabase::dimStyleTableId, false},
    {L"CTABLESTYLE", Kind::kObjectId, &KyDbDatabase::tableStyleDictionaryId, false},
    {L"CMLEADERSTYLE", Kind::kObjectId, &KyDbDatabase::mleaderStyleDictionaryId, false},
    {L"CMATERIAL", Kind::kObjectId, &KyDbDatabase::materialDictionaryId, false},
    {L"CVIEWDETAILSTYLE", Kind::kObjectId, &KyDbDatabase::detailViewStyleDictionaryId, false},
    {L"CVIEWSECTIONSTYLE", Kind::kObjectId, &KyDbDatabase::sectionViewStyleDictionaryId, false},
    {L"UCSBASE", Kind::kObjectId, &KyDbDatabase::UCSTableId, true},
    {L"CECOLOR", Kind::kColor, nullptr, false},
    {L"CETRANSPARENCY", Kind::kTransparency, nullptr, false},
    {L"CELWEIGHT", Kind::kLineWeight, nullptr, false},
    {L"CSHADOW", Kind::kShadowFlags, nullptr, false},
    {L"TILEMODE", Kind::kBool, nullptr, false},
    {L"PSTYLEMODE", Kind::kBool, nullptr, false},
};

}  // namespace

std::span<const KyDbHeader::Row> KyDbHeader::rows() {
    return kRows;
}

const KyDbHeader::Row* KyDbHeader::findRow(const wchar_t* name) {
    if (name == nullptr) {
        return nullptr;
    }
    const KyString text(name);
    for (const Row& row : kRows) {
        if (text.compareNoCase(row.name) == 0) {
            return &row;
        }
    }
    return nullptr;
}

const KyRxValueType& KyDbHeader::typeOf(const Row& row) {
    switch (row.kind) {
        case Kind::kObjectId:
            return KyRxValueType::Desc<KyDbObjectId>::value();
        case Kind::kColor:
            return KyRxValueType::Desc<KyCmColor>::value();
        case Kind::kTransparency:
            return KyRxValueType::Desc<KyCmTransparency>::value();
        case Kind::kLineWeight:
            return KyRxValueType::Desc<KyDb::LineWeight>::value();
        case Kind::kShadowFlags:
            return KyRxValueType::Desc<KyDb::ShadowFlags>::value();
        case Kind::kBool:
            break;
    }
    return KyRxValueType::Desc<bool>::value();
}

const KyRxValue* KyDbHeader::find(const wchar_t* name) const {
    if (name == nullptr) {
        return nullptr;
    }
    const auto it = m_values.find(name);
    return it != m_values.end() ? &it->second : nullptr;
}

void KyDbHeader::set(const wchar_t* name, const KyRxValue& value) {
    const auto it = m_values.find(name);
    if (it != m_values.end()) {
        it->second = value;
    } else {
        m_values.emplace(KyString(name), value);
    }
}

void KyDbHeader::remove(const wchar_t* name) {
    const auto it = m_values.find(name);
    if (it != m_values.end()) {
        m_values.erase(it);
    }
}

KyStringArray KyDbHeader::names() const {
    KyStringArray result;
    for (const auto& entry : m_values) {
        result.append(entry.first);
    }
    return result;
}
