#include "DrawingFieldMutator.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <utility>
#include <vector>

#include "io/KyRefJson.h"

namespace kyfuzz {
namespace {

using Random = std::mt19937;

// A value of the document with the way to it from its container.
struct Place {
    KyRefJson* value = nullptr;
    KyRefJson* parent = nullptr;  // null for the document itself
    std::string key;              // of a member
    std::size_t index = 0;        // of an item
};

void collect(KyRefJson& value, KyRefJson* parent, std::string key, std::size_t index,
             std::vector<Place>& places) {
    places.push_back(Place{&value, parent, std::move(key), index});
    if (value.is_object()) {
        for (auto it = value.begin(); it != value.end(); ++it) {
            collect(*it, &value, it.key(), 0, places);
        }
    } else if (value.is_array()) {
        for (std::size_t i = 0; i < value.size(); ++i) {
            collect(value[i], &value, std::string(), i, places);
        }
    }
}

std::size_t pick(Random& random, std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
}

// Values at the edges of what the format takes, of every JSON type.
KyRefJson interestingValue(Random& random) {
    static const KyRefJson kValues = KyRefJson::parse(R"json([
        null, true, false, 0, 1, -1, 2, 3, 7, 8, 9, 255, 256, 257, -2, -3, -4, 27, 32768,
        65535, 65536, 2147483647, -2147483648, 2147483648, 4294967296, 9223372036854775807,
        -9223372036854775808, 18446744073709551615, 0.5, -0.5, 0.0, -0.0, 1e-320, 1e19, -1e19,
        3e9, 1e308, -1e308, 360.0, -720.0,
        "", "0", "1", "1A", "FFFFFFFFFFFFFFFF", "10000000000000000", "-1", "x", "ByLayer",
        "ByBlock", "BYLAYER", "*Model_Space", "*Paper_Space", "*Paper_Space0", "*D1", "Standard",
        "Continuous", "0|Walls", "A|B", "|", "*", "?", "..", "\u00e4\u00df", "\ud83d\ude00",
        "a\u0000b", "2.5*2", "1/0", "-(1+2)", "1e999", "2*", "()",
        "NAME==\"A*\" AND NOT OFF==\"True\"",
        "(((((((((((((((((((((((((((((((((1)))))))))))))))))))))))))))))))))",
        "kydrawing", "LINE", "VIEWPORT", "DICTIONARY", "LAYOUT",
        [], [0], [0, 0], [0, 0, 0], [1, 2, 3, 4], [[0, 0], [1, 1]], [[0, 0], [1, 0], [1, 1]],
        ["0"], [null], [{}],
        {}, {"rgb": [1, 2, 3]}, {"rgb": [1, 2, 3], "book": "RAL", "name": "3020"},
        {"rgb": [256, 0, -1]}, {"name": "Signal"}, {"rgb": []},
        {"type": "DICTIONARY", "handle": "FFF0", "entries": {}},
        {"type": "LINE", "handle": "FFF1", "start": [0, 0], "end": [1, 1]},
        {"handle": "FFF2", "name": "New"}
    ])json");
    KyRefJson value = kValues[pick(random, kValues.size())];
    if (random() % 16 == 0) {
        // A text or an array long enough to reach limits of depth and size.
        const std::size_t length = 1 + random() % 3000;
        if (random() % 2 == 0) {
            value = std::string(length, '(') + "1" + std::string(length, ')');
        } else {
            value = KyRefJson::array();
            for (std::size_t i = 0; i < length; ++i) {
                value.push_back(KyRefJson::array({0, 0}));
            }
        }
    }
    return value;
}

// Member names of the format, for members added where they may not belong.
std::string memberName(Random& random, const std::vector<std::string>& keys) {
    static const char* const kNames[] = {"handle",
                                         "name",
                                         "type",
                                         "color",
                                         "linetype",
                                         "lineweight",
                                         "transparency",
                                         "plotStyle",
                                         "layer",
                                         "entities",
                                         "layout",
                                         "xref",
                                         "path",
                                         "overlay",
                                         "block",
                                         "points",
                                         "closed",
                                         "formulas",
                                         "height",
                                         "decimalPlaces",
                                         "target",
                                         "direction",
                                         "lensLength",
                                         "width",
                                         "viewCenter",
                                         "viewHeight",
                                         "frozenLayers",
                                         "clip",
                                         "visualStyle",
                                         "sun",
                                         "on",
                                         "locked",
                                         "viewportOverrides",
                                         "viewport",
                                         "attributes",
                                         "tag",
                                         "text",
                                         "dynamic",
                                         "measurement",
                                         "loops",
                                         "pattern",
                                         "definition",
                                         "size",
                                         "rows",
                                         "columns",
                                         "cellStyles",
                                         "entries",
                                         "default",
                                         "mask",
                                         "layers",
                                         "filters",
                                         "expression",
                                         "current",
                                         "hidden",
                                         "values",
                                         "KYRO_LAYERSTATES",
                                         "KYRO_LAYOUT",
                                         "CLAYER",
                                         "CVPORT",
                                         "TILEMODE",
                                         "CTAB",
                                         "plotSettings",
                                         "plotStyleTable",
                                         "pageSetup",
                                         "rasterDpi",
                                         "tabOrder",
                                         "scale",
                                         "rotation",
                                         "style",
                                         "radius",
                                         "center",
                                         "start",
                                         "end",
                                         "version"};
    if (!keys.empty() && random() % 2 == 0) {
        return keys[pick(random, keys.size())];
    }
    return kNames[pick(random, std::size(kNames))];
}

// Small letters made capitals and capitals small.
std::string swapCase(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') {
            c = static_cast<char>(c - 'a' + 'A');
        } else if (c >= 'A' && c <= 'Z') {
            c = static_cast<char>(c - 'A' + 'a');
        }
    }
    return text;
}

// The start of the UTF-8 character at `at` (the one after it with `next`),
// so that a text cut or grown there stays UTF-8: a string of a drawing is
// valid UTF-8, or the JSON could not be written.
std::size_t characterStart(const std::string& text, std::size_t at, bool next = false) {
    const auto continuation = [&text](std::size_t i) {
        return i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    };
    while (continuation(at)) {
        at = next ? at + 1 : at - 1;
    }
    return std::min(at, text.size());
}

// A value near `value`, of its own type.
KyRefJson nearValue(const KyRefJson& value, const std::vector<const KyRefJson*>& strings,
                    Random& random) {
    if (value.is_boolean()) {
        return !value.get<bool>();
    }
    if (value.is_number_integer()) {
        // In unsigned arithmetic, which wraps where the signed would
        // overflow: the wrapped values are as welcome as any.
        const auto number = static_cast<std::uint64_t>(value.get<std::int64_t>());
        const std::uint64_t steps[] = {1, 2, 16, 255};
        const std::uint64_t step = steps[pick(random, std::size(steps))];
        switch (random() % 4) {
            case 0:
                return static_cast<std::int64_t>(number + step);
            case 1:
                return static_cast<std::int64_t>(number - step);
            case 2:
                return static_cast<std::int64_t>(0 - number);
            default:
                return static_cast<std::int64_t>(number * 2);
        }
    }
    if (value.is_number()) {
        const double number = value.get<double>();
        const double factors[] = {-1.0, 0.0, 0.5, 2.0, 1e-9, 1e9};
        return number * factors[pick(random, std::size(factors))];
    }
    if (value.is_string()) {
        std::string text = value.get<std::string>();
        switch (random() % 5) {
            case 0:
            case 1:
                // A name or handle of another record: references that point
                // elsewhere, duplicates, names of another table.
                if (!strings.empty()) {
                    return *strings[pick(random, strings.size())];
                }
                return text + "x";
            case 2:
                if (!text.empty()) {
                    const std::size_t at = characterStart(text, pick(random, text.size()));
                    text.erase(at, characterStart(text, at + 1, true) - at);
                }
                return text;
            case 3:
                return swapCase(std::move(text));
            default:
                text.insert(text.begin() + static_cast<std::ptrdiff_t>(
                                               characterStart(text, pick(random, text.size() + 1))),
                            "0|* \"\\"[random() % 6]);
                return text;
        }
    }
    return interestingValue(random);
}

void replace(const Place& place, KyRefJson value) {
    *place.value = std::move(value);
}

void drop(const Place& place) {
    if (place.parent->is_object()) {
        place.parent->erase(place.key);
    } else {
        place.parent->erase(place.index);
    }
}

// The item again right after itself, or the member again in another object
// of the document under its own key.
void duplicate(const Place& place, const std::vector<Place>& places, Random& random) {
    const KyRefJson copy = *place.value;
    if (place.parent->is_array()) {
        place.parent->insert(place.parent->begin() + static_cast<std::ptrdiff_t>(place.index + 1),
                             copy);
        return;
    }
    std::vector<KyRefJson*> objects;
    for (const Place& other : places) {
        if (other.value->is_object() && other.value != place.parent) {
            objects.push_back(other.value);
        }
    }
    if (!objects.empty()) {
        (*objects[pick(random, objects.size())])[place.key] = copy;
    }
}

void move(const Place& place, Random& random) {
    KyRefJson& array = *place.parent;
    const std::size_t to = pick(random, array.size());
    std::swap(array[place.index], array[to]);
}

// The member under another key: its own in another case (keys and names
// compare without regard to case), or a key of the format or the document.
void rename(const Place& place, const std::vector<std::string>& keys, Random& random) {
    const std::string key = random() % 2 == 0 ? swapCase(place.key) : memberName(random, keys);
    KyRefJson value = std::move(*place.value);
    place.parent->erase(place.key);
    (*place.parent)[key] = std::move(value);
}

bool mutateDocument(KyRefJson& document, Random& random) {
    std::vector<Place> places;
    collect(document, nullptr, std::string(), 0, places);
    std::vector<const KyRefJson*> strings;
    std::vector<std::string> keys;
    for (const Place& place : places) {
        if (place.value->is_string()) {
            strings.push_back(place.value);
        }
        if (place.parent != nullptr && place.parent->is_object()) {
            keys.push_back(place.key);
        }
    }
    // The document itself only gains members; every other place can lose one.
    const Place& place = places[pick(random, places.size())];
    const bool top = place.parent == nullptr;
    switch (random() % 9) {
        case 0:
        case 1:
            if (top) {
                return false;
            }
            replace(place, nearValue(*place.value, strings, random));
            return true;
        case 2:
        case 3:
            if (top) {
                return false;
            }
            replace(place, interestingValue(random));
            return true;
        case 4:
            if (top) {
                return false;
            }
            drop(place);
            return true;
        case 5:
            if (top) {
                return false;
            }
            duplicate(place, places, random);
            return true;
        case 6:
            if (top || !place.parent->is_array()) {
                return false;
            }
            move(place, random);
            return true;
        case 7:
            if (top || !place.parent->is_object()) {
                return false;
            }
            rename(place, keys, random);
            return true;
        default: {
            if (!place.value->is_object()) {
                return false;
            }
            const std::string key = memberName(random, keys);
            // Copied before the insertion, which may move the object's members.
            KyRefJson value = random() % 2 == 0 ? *places[pick(random, places.size())].value
                                                : interestingValue(random);
            (*place.value)[key] = std::move(value);
            return true;
        }
    }
}

// How deep the arrays and objects of a JSON text nest, read from the text:
// a document far deeper than a drawing may be is not parsed, since copying
// or walking it recurses as deep.
std::size_t nestingOf(const std::string& text) {
    std::size_t depth = 0;
    std::size_t deepest = 0;
    bool inString = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (inString) {
            if (c == '\\') {
                ++i;
            } else if (c == '"') {
                inString = false;
            }
        } else if (c == '"') {
            inString = true;
        } else if (c == '[' || c == '{') {
            deepest = std::max(deepest, ++depth);
        } else if ((c == ']' || c == '}') && depth > 0) {
            --depth;
        }
    }
    return deepest;
}

KyRefJson parsedOrBase(const std::string& text) {
    constexpr std::size_t kMaxNesting = 160;
    KyRefJson document = nestingOf(text) <= kMaxNesting ? KyRefJson::parse(text, nullptr, false)
                                                        : KyRefJson(KyRefJson::value_t::discarded);
    if (document.is_discarded() || !document.is_object()) {
        document = KyRefJson::parse(DrawingFieldMutator::baseDrawing());
    }
    return document;
}

}  // namespace

std::string DrawingFieldMutator::mutate(const std::string& text, std::size_t maxSize,
                                        std::uint32_t seed) {
    Random random(seed);
    const KyRefJson original = parsedOrBase(text);
    for (int attempt = 0; attempt < 8; ++attempt) {
        KyRefJson document = original;
        if (!mutateDocument(document, random)) {
            continue;
        }
        std::string out = document.dump();
        if (out.size() <= maxSize) {
            return out;
        }
    }
    return text;
}

std::string DrawingFieldMutator::crossOver(const std::string& first, const std::string& second,
                                           std::size_t maxSize, std::uint32_t seed) {
    Random random(seed);
    KyRefJson into = parsedOrBase(first);
    KyRefJson from = parsedOrBase(second);
    std::vector<Place> targets;
    std::vector<Place> sources;
    collect(into, nullptr, std::string(), 0, targets);
    collect(from, nullptr, std::string(), 0, sources);
    if (targets.size() < 2) {
        return first;
    }
    const Place& target = targets[1 + pick(random, targets.size() - 1)];
    *target.value = *sources[pick(random, sources.size())].value;
    std::string out = into.dump();
    return out.size() <= maxSize ? out : first;
}

const char* DrawingFieldMutator::baseDrawing() {
    return R"({
 "format": "kydrawing", "version": 1,
 "header": {"CLAYER": "Walls", "CVPORT": 2},
 "linetypes": [
  {"handle": "14", "name": "ByBlock"}, {"handle": "15", "name": "ByLayer"},
  {"handle": "16", "name": "Continuous"},
  {"handle": "17", "name": "DASHED", "pattern": [0.5, -0.25]}],
 "layers": [
  {"handle": "10", "name": "0"},
  {"handle": "20", "name": "Walls", "color": 5, "linetype": "DASHED", "lineweight": 25,
   "viewportOverrides": [{"viewport": "41", "color": 1}]}],
 "textStyles": [{"handle": "11", "name": "Standard"}],
 "dimStyles": [{"handle": "12", "name": "Standard"}],
 "blocks": [
  {"handle": "1A", "name": "*Model_Space", "layout": "2A", "entities": [
   {"type": "LINE", "handle": "30", "layer": "Walls", "start": [0, 0], "end": [10, 5]},
   {"type": "INSERT", "handle": "31", "block": "Door", "position": [1, 2]},
   {"type": "TEXT", "handle": "33", "position": [0, 0], "height": 5, "text": "Hall",
    "formulas": {"height": "2.5*2"}}]},
  {"handle": "1B", "name": "*Paper_Space", "layout": "2B", "entities": [
   {"type": "VIEWPORT", "handle": "40", "center": [5, 5], "width": 10, "height": 10,
    "viewCenter": [5, 5], "viewHeight": 10},
   {"type": "VIEWPORT", "handle": "41", "center": [5, 5], "width": 4, "height": 4,
    "viewCenter": [0, 0], "viewHeight": 4, "frozenLayers": ["Walls"]}]},
  {"handle": "1C", "name": "Door", "entities": [
   {"type": "CIRCLE", "handle": "32", "center": [0, 0, 0], "radius": 1.5}]}],
 "objects": {"type": "DICTIONARY", "handle": "C", "entries": {
  "KYRO_LAYOUT": {"type": "DICTIONARY", "handle": "D", "entries": {
   "Model": {"type": "LAYOUT", "handle": "2A", "name": "Model", "tabOrder": 0, "block": "1A"},
   "Layout1": {"type": "LAYOUT", "handle": "2B", "name": "Layout1", "tabOrder": 1,
               "block": "1B"}}}}},
 "layerFilters": {"name": "All", "filters": [{"name": "Reds", "expression": "COLOR==\"1\""}]},
 "layerStates": [{"name": "Plan", "layers": [
  {"name": "Walls", "off": false, "frozen": false, "locked": false, "plottable": true,
   "color": 5, "linetype": "DASHED", "lineweight": 25, "transparency": 255,
   "plotStyle": "Normal"}]}]
})";
}

}  // namespace kyfuzz
