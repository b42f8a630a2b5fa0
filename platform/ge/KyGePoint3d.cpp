#include "ge/KyGePoint3d.h"

#include <cmath>
#include <iterator>
#include <string>

#include "rx/KyRxValueMemberProperty.h"
#include "rx/KyRxValueText.h"

const KyGePoint3d KyGePoint3d::kOrigin(0.0, 0.0, 0.0);

double KyGePoint3d::distanceTo(const KyGePoint3d& other) const {
    return std::sqrt((x - other.x) * (x - other.x) + (y - other.y) * (y - other.y) +
                     (z - other.z) * (z - other.z));
}

namespace {

using KyGePoint3dCoordinateProperty = KyRxValueMemberProperty<KyGePoint3d, double>;

struct KyGePoint3dCoordinateRow {
    const wchar_t* name;
    KyGePoint3dCoordinateProperty::Getter getter;
    KyGePoint3dCoordinateProperty::Setter setter;
};

const KyGePoint3dCoordinateRow kCoordinateRows[] = {
    {L"X", [](const KyGePoint3d& p) { return p.x; },
     [](KyGePoint3d& p, double value) {
         p.x = value;
         return true;
     }},
    {L"Y", [](const KyGePoint3d& p) { return p.y; },
     [](KyGePoint3d& p, double value) {
         p.y = value;
         return true;
     }},
    {L"Z", [](const KyGePoint3d& p) { return p.z; },
     [](KyGePoint3d& p, double value) {
         p.z = value;
         return true;
     }},
};

void buildCoordinates(KyRxMemberCollectionBuilder& builder, void*) {
    for (const KyGePoint3dCoordinateRow& row : kCoordinateRows) {
        builder.add(
            new KyGePoint3dCoordinateProperty(row.name, builder.owner(), row.getter, row.setter));
    }
}

class KyGePoint3dValueType : public KyRxValueTypePOD<KyGePoint3d> {
public:
    KyGePoint3dValueType() : KyRxValueTypePOD<KyGePoint3d>(L"KyGePoint3d", &buildCoordinates) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat) const override {
        const auto& point = *static_cast<const KyGePoint3d*>(instance);
        const std::wstring text = kyrxDoubleText(point.x) + L"," + kyrxDoubleText(point.y) + L"," +
                                  kyrxDoubleText(point.z);
        return putText(text.c_str(), buffer, size);
    }
};

}  // namespace

template <>
const KyRxValueType& KyRxValueType::Desc<KyGePoint3d>::value() {
    static const KyRxValueType* const s_type = new KyGePoint3dValueType();
    return *s_type;
}
