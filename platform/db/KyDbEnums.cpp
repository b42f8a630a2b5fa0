#include "db/KyDbEnums.h"

#include <iterator>
#include <string>

#include "rx/KyRxMember.h"
#include "rx/KyRxMethod.h"
#include "rx/KyRxStandardAttributes.h"

namespace {

// One tag of an enumerated value type: the value, its global name, and the
// id of its local name among the platform's resource texts (table 0).
struct KyDbEnumTagRow {
    int value;
    const wchar_t* name;
    unsigned int textId;
};

struct KyDbEnumTagTable {
    const KyDbEnumTagRow* rows;
    int count;
};

// Tags in the order a list shows them: the sentinels first, then the weights.
const KyDbEnumTagRow kLineWeightRows[] = {
    {KyDb::kLnWtByLayer, L"ByLayer", 9000},     {KyDb::kLnWtByBlock, L"ByBlock", 9001},
    {KyDb::kLnWtByLwDefault, L"Default", 9002}, {KyDb::kLnWt000, L"0.00 mm", 9003},
    {KyDb::kLnWt005, L"0.05 mm", 9004},         {KyDb::kLnWt009, L"0.09 mm", 9005},
    {KyDb::kLnWt013, L"0.13 mm", 9006},         {KyDb::kLnWt015, L"0.15 mm", 9007},
    {KyDb::kLnWt018, L"0.18 mm", 9008},         {KyDb::kLnWt020, L"0.20 mm", 9009},
    {KyDb::kLnWt025, L"0.25 mm", 9010},         {KyDb::kLnWt030, L"0.30 mm", 9011},
    {KyDb::kLnWt035, L"0.35 mm", 9012},         {KyDb::kLnWt040, L"0.40 mm", 9013},
    {KyDb::kLnWt050, L"0.50 mm", 9014},         {KyDb::kLnWt053, L"0.53 mm", 9015},
    {KyDb::kLnWt060, L"0.60 mm", 9016},         {KyDb::kLnWt070, L"0.70 mm", 9017},
    {KyDb::kLnWt080, L"0.80 mm", 9018},         {KyDb::kLnWt090, L"0.90 mm", 9019},
    {KyDb::kLnWt100, L"1.00 mm", 9020},         {KyDb::kLnWt106, L"1.06 mm", 9021},
    {KyDb::kLnWt120, L"1.20 mm", 9022},         {KyDb::kLnWt140, L"1.40 mm", 9023},
    {KyDb::kLnWt158, L"1.58 mm", 9024},         {KyDb::kLnWt200, L"2.00 mm", 9025},
    {KyDb::kLnWt211, L"2.11 mm", 9026},
};

const KyDbEnumTagRow kShadowRows[] = {
    {KyDb::kShadowsCastAndReceive, L"Casts and receives shadows", 9100},
    {KyDb::kShadowsDoesNotReceive, L"Casts shadows", 9101},
    {KyDb::kShadowsDoesNotCast, L"Receives shadows", 9102},
    {KyDb::kShadowsIgnore, L"Ignore shadows", 9103},
};

const KyDbEnumTagTable kLineWeightTable = {kLineWeightRows,
                                           static_cast<int>(std::size(kLineWeightRows))};
const KyDbEnumTagTable kShadowTable = {kShadowRows, static_cast<int>(std::size(kShadowRows))};

// An enumeration whose members are its tags, made from a row table. A value
// without a tag prints as its number.
template <typename E>
class KyDbEnumValueType : public KyRxValueTypePOD<E> {
public:
    KyDbEnumValueType(const wchar_t* name, const KyDbEnumTagTable& table)
        : KyRxValueTypePOD<E>(name, &buildTags, const_cast<KyDbEnumTagTable*>(&table)) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    KyRxValueType::StringFormat format) const override {
        const int value = static_cast<int>(*static_cast<const E*>(instance));
        if (hasTag(value)) {
            return KyRxValueType::subToString(instance, buffer, size, format);
        }
        return KyRxValueType::putText(std::to_wstring(value).c_str(), buffer, size);
    }

private:
    static void buildTags(KyRxMemberCollectionBuilder& builder, void* userData) {
        const auto& table = *static_cast<const KyDbEnumTagTable*>(userData);
        for (int i = 0; i < table.count; ++i) {
            const KyDbEnumTagRow& row = table.rows[i];
            auto* tag = new KyRxEnumTag(row.name, KyRxValue(static_cast<E>(row.value)));
            tag->attributes().add(new KyRxLocalizedNameAttribute(row.textId));
            builder.add(tag);
        }
    }

    bool hasTag(int value) const {
        const auto& table = *static_cast<const KyDbEnumTagTable*>(this->userData());
        for (int i = 0; i < table.count; ++i) {
            if (table.rows[i].value == value) {
                return true;
            }
        }
        return false;
    }
};

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<KyDb::LineWeight>::value() {
    static const KyRxValueType* const s_type =
        new KyDbEnumValueType<KyDb::LineWeight>(L"KyDbLineWeight", kLineWeightTable);
    return *s_type;
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyDb::ShadowFlags>::value() {
    static const KyRxValueType* const s_type = [] {
        auto* type = new KyDbEnumValueType<KyDb::ShadowFlags>(L"KyDbShadowFlags", kShadowTable);
        // Its values are two bits (no receiving, no casting), not a choice.
        type->attributes().add(new KyRxFlagsAttribute());
        return type;
    }();
    return *s_type;
}
