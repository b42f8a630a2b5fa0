#include "KyRefValueForms.h"

#include <string>

namespace {

constexpr const char* kColorExpected =
    "expected a colour: an integer 0 to 256 or {\"rgb\": [r, g, b]}";
constexpr const char* kLayerColorExpected =
    "expected a layer colour: an integer 1 to 255 or {\"rgb\": [r, g, b]}";
constexpr const char* kPointExpected = "expected a point [x, y] or [x, y, z]";

bool isStandardWeight(int weight) {
    static const int kWeights[] = {-3, -2, -1, 0,  5,  9,  13,  15,  18,  20,  25,  30,  35, 40,
                                   50, 53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
    for (const int standard : kWeights) {
        if (standard == weight) {
            return true;
        }
    }
    return false;
}

}  // namespace

KyCmColor KyRefValueForms::color(const KyRefJsonNode& node, ColorUse use) {
    const KyRefJson& value = node.value();
    const char* expected = use == ColorUse::kLayer ? kLayerColorExpected : kColorExpected;
    KyCmColor color;
    if (value.is_number_integer()) {
        const int low = use == ColorUse::kLayer ? 1 : 0;
        const int high = use == ColorUse::kLayer ? 255 : 256;
        if (value.is_number_unsigned()
                ? value.get<std::uint64_t>() > static_cast<unsigned>(high)
                : (value.get<std::int64_t>() < low || value.get<std::int64_t>() > high)) {
            node.fail(std::string(expected) + ", found " + value.dump());
        }
        color.setColorIndex(static_cast<unsigned short>(value.get<int>()));
        return color;
    }
    if (!value.is_object()) {
        node.fail(std::string(expected) + ", found " + KyRefJsonNode::describe(value));
    }
    const KyRefJsonNode rgb = node.required("rgb", "[r, g, b] with integers 0 to 255");
    rgb.expectArray();
    if (rgb.size() != 3) {
        rgb.fail("expected [r, g, b] with integers 0 to 255");
    }
    int channels[3] = {};
    for (std::size_t i = 0; i < 3; ++i) {
        channels[i] = rgb.item(i).asInteger(0, 255);
    }
    color.setRGB(static_cast<unsigned char>(channels[0]), static_cast<unsigned char>(channels[1]),
                 static_cast<unsigned char>(channels[2]));
    const KyString name = node.text("name", L"");
    const KyString book = node.text("book", L"");
    if (!book.isEmpty() && name.isEmpty()) {
        node.required("name", "a colour name beside \"book\"").asText();
    }
    if (!name.isEmpty()) {
        color.setNames(name, book.isEmpty() ? nullptr : book.kwszPtr());
    }
    return color;
}

KyRefJson KyRefValueForms::color(const KyCmColor& color) {
    if (!color.isByColor()) {
        return color.colorIndex();
    }
    KyRefJson out = KyRefJson::object();
    out["rgb"] = KyRefJson::array({color.red(), color.green(), color.blue()});
    if (color.hasBookName()) {
        out["book"] = kyrefUtf8(color.bookName());
    }
    if (color.hasColorName()) {
        out["name"] = kyrefUtf8(color.colorName());
    }
    return out;
}

KyCmTransparency KyRefValueForms::transparency(const KyRefJsonNode& node) {
    const KyRefJson& value = node.value();
    KyCmTransparency transparency;
    if (value.is_string()) {
        const KyString text = node.asText();
        if (text.compareNoCase(L"ByLayer") == 0) {
            transparency.setMethod(KyCmTransparency::kByLayer);
            return transparency;
        }
        if (text.compareNoCase(L"ByBlock") == 0) {
            transparency.setMethod(KyCmTransparency::kByBlock);
            return transparency;
        }
        node.fail("expected a transparency: \"ByLayer\", \"ByBlock\" or an alpha 0 to 255, found " +
                  value.dump());
    }
    if (!value.is_number_integer()) {
        node.fail(
            std::string(
                "expected a transparency: \"ByLayer\", \"ByBlock\" or an alpha 0 to 255, found ") +
            KyRefJsonNode::describe(value));
    }
    transparency.setAlpha(static_cast<std::uint8_t>(node.asInteger(0, 255)));
    return transparency;
}

KyRefJson KyRefValueForms::transparency(const KyCmTransparency& transparency) {
    if (transparency.isByLayer()) {
        return "ByLayer";
    }
    if (transparency.isByBlock()) {
        return "ByBlock";
    }
    return transparency.alpha();
}

KyDb::LineWeight KyRefValueForms::lineWeight(const KyRefJsonNode& node, WeightUse use) {
    const KyRefJson& value = node.value();
    const bool integer = value.is_number_integer();
    // Compared as JSON numbers before narrowing: a value beyond int could
    // wrap around onto a standard weight. Out of range is 1, which none is.
    const int weight = integer && value >= -3 && value <= 211 ? value.get<int>() : 1;
    const bool allowed =
        integer && isStandardWeight(weight) &&
        (use == WeightUse::kAny || (weight != KyDb::kLnWtByLayer && weight != KyDb::kLnWtByBlock));
    if (!allowed) {
        node.fail(std::string(use == WeightUse::kLayer
                                  ? "expected a layer lineweight: -3 (Default) or a standard "
                                    "weight in hundredths of a millimetre"
                                  : "expected a lineweight: -1 (ByLayer), -2 (ByBlock), -3 "
                                    "(Default) or a standard weight in hundredths of a "
                                    "millimetre") +
                  ", found " + (integer ? value.dump() : KyRefJsonNode::describe(value)));
    }
    return static_cast<KyDb::LineWeight>(weight);
}

KyGePoint3d KyRefValueForms::point(const KyRefJsonNode& node) {
    const KyRefJson& value = node.value();
    if (!value.is_array() || (value.size() != 2 && value.size() != 3)) {
        node.fail(std::string(kPointExpected) + ", found " +
                  (value.is_array() ? "an array of " + std::to_string(value.size())
                                    : std::string(KyRefJsonNode::describe(value))));
    }
    double coordinates[3] = {};
    for (std::size_t i = 0; i < value.size(); ++i) {
        coordinates[i] = node.item(i).asNumber();
    }
    return KyGePoint3d(coordinates[0], coordinates[1], coordinates[2]);
}

KyRefJson KyRefValueForms::point(const KyGePoint3d& point) {
    return KyRefJson::array({point.x, point.y, point.z});
}

KyRefJson KyRefValueForms::shortPoint(const KyGePoint3d& point) {
    return point.z == 0.0 ? KyRefJson::array({point.x, point.y})
                          : KyRefJson::array({point.x, point.y, point.z});
}

KyArray<KyGePoint3d> KyRefValueForms::points(const KyRefJsonNode& node) {
    node.expectArray();
    KyArray<KyGePoint3d> points;
    points.setPhysicalLength(static_cast<int>(node.size()));
    for (std::size_t i = 0; i < node.size(); ++i) {
        points.append(point(node.item(i)));
    }
    return points;
}

KyRefJson KyRefValueForms::points(const KyArray<KyGePoint3d>& points) {
    KyRefJson out = KyRefJson::array();
    for (int i = 0; i < points.length(); ++i) {
        out.push_back(shortPoint(points[i]));
    }
    return out;
}

KyDbHandle KyRefValueForms::handle(const KyRefJsonNode& node) {
    const KyRefJson& value = node.value();
    KyDbHandle handle;
    // One spelling for each handle, the one the writer gives back: no small
    // letters, no leading zeros (and nothing after a NUL that the wide text
    // would drop).
    if (!value.is_string() || !KyDbHandle::fromText(node.asText(), handle) || handle.isNull() ||
        kyrefUtf8(handle.text()) != value.get_ref<const std::string&>()) {
        node.fail(
            "expected a handle: hexadecimal text in capitals without leading zeros, other than "
            "\"0\", found " +
            (value.is_string() ? value.dump() : std::string(KyRefJsonNode::describe(value))));
    }
    return handle;
}

KyRefJson KyRefValueForms::handle(KyDbHandle handle) {
    return kyrefUtf8(handle.text());
}
