#include "db/KyCmColor.h"

#include <array>
#include <cstdint>
#include <cwchar>

#include "rx/KyRxStandardAttributes.h"

namespace {

constexpr unsigned int pack(unsigned int method, unsigned int payload) {
    return (method << 24) | (payload & 0xFFFFFFu);
}

constexpr unsigned int rgb(int red, int green, int blue) {
    return (static_cast<unsigned int>(red) << 16) | (static_cast<unsigned int>(green) << 8) |
           static_cast<unsigned int>(blue);
}

// One entry of the coloured part of the palette: a hue in steps of 15
// degrees (0 to 23), a brightness, and a full or a pale tint (a third of the
// saturation), converted from hue, saturation and value to red, green, blue.
constexpr unsigned int hueEntry(int hueStep, double level, bool pale) {
    const double chroma = pale ? level / 3.0 : level;
    const double base = level - chroma;
    const int sector = hueStep / 4;
    const double fraction = (hueStep % 4) / 4.0;
    const double partial = chroma * (sector % 2 == 0 ? fraction : 1.0 - fraction);
    // Per sector of 60 degrees: which component is full, which one is partial
    // (rising or falling with the hue) and which one stays at the base.
    const double table[6][3] = {{chroma, partial, 0}, {partial, chroma, 0}, {0, chroma, partial},
                                {0, partial, chroma}, {partial, 0, chroma}, {chroma, 0, partial}};
    const double red = table[sector][0];
    const double green = table[sector][1];
    const double blue = table[sector][2];
    return rgb(static_cast<int>(red + base + 0.5), static_cast<int>(green + base + 0.5),
               static_cast<int>(blue + base + 0.5));
}

// The standard 256-colour index palette: black at 0 (ByBlock), the seven
// named colours at 1 to 7, two greys at 8 and 9, 24 hues of ten entries each
// at 10 to 249 (five brightnesses, each full and pale), six greys at 250 to
// 255 from dark to white.
constexpr std::array<unsigned int, 256> makePalette() {
    std::array<unsigned int, 256> palette{};
    palette[0] = rgb(0, 0, 0);
    palette[1] = rgb(255, 0, 0);
    palette[2] = rgb(255, 255, 0);
    palette[3] = rgb(0, 255, 0);
    palette[4] = rgb(0, 255, 255);
    palette[5] = rgb(0, 0, 255);
    palette[6] = rgb(255, 0, 255);
    palette[7] = rgb(255, 255, 255);
    palette[8] = rgb(128, 128, 128);
    palette[9] = rgb(192, 192, 192);
    constexpr double kLevels[5] = {255, 189, 129, 104, 79};
    for (int index = 10; index < 250; ++index) {
        const int hueStep = (index - 10) / 10;
        const int shade = (index - 10) % 10;
        palette[static_cast<size_t>(index)] = hueEntry(hueStep, kLevels[shade / 2], shade % 2 != 0);
    }
    constexpr int kGreys[6] = {51, 80, 105, 130, 190, 255};
    for (int i = 0; i < 6; ++i) {
        palette[static_cast<size_t>(250 + i)] = rgb(kGreys[i], kGreys[i], kGreys[i]);
    }
    return palette;
}

constexpr std::array<unsigned int, 256> kPalette = makePalette();

static_assert(kPalette[10] == 0xFF0000 && kPalette[11] == 0xFFAAAA, "red hue, full and pale");
static_assert(kPalette[130] == 0x00FFFF, "cyan hue at 180 degrees");

const wchar_t* const kIndexNames[8] = {nullptr, L"red",  L"yellow",  L"green",
                                       L"cyan", L"blue", L"magenta", L"white"};

// The platform's resource texts of the reserved colour words and of the names
// of indices 1 to 7 (9210 + index).
constexpr unsigned int kTextByLayer = 9200;
constexpr unsigned int kTextByBlock = 9201;
constexpr unsigned int kTextForeground = 9202;
constexpr unsigned int kTextNone = 9203;
constexpr unsigned int kTextIndexNames = 9210;

// The display name of a colour, the words taken from `word(textId, global)`.
template <typename Word>
KyString displayName(const KyCmColor& color, Word word) {
    if (color.hasColorName()) {
        if (color.hasBookName()) {
            return KyString::formatted(L"%ls$%ls", color.bookName(), color.colorName());
        }
        return KyString(color.colorName());
    }
    switch (color.colorMethod()) {
        case KyCmColor::kByLayer:
            return word(kTextByLayer, L"ByLayer");
        case KyCmColor::kByBlock:
            return word(kTextByBlock, L"ByBlock");
        case KyCmColor::kForeground:
            return word(kTextForeground, L"Foreground");
        case KyCmColor::kNone:
            return word(kTextNone, L"None");
        case KyCmColor::kByColor:
            return KyString::formatted(L"%d,%d,%d", color.red(), color.green(), color.blue());
        case KyCmColor::kByACI:
            break;
    }
    const unsigned short index = color.colorIndex();
    if (index >= 1 && index <= 7) {
        return word(kTextIndexNames + index, kIndexNames[index]);
    }
    return KyString::formatted(L"%d", static_cast<int>(index));
}

class KyCmColorValueType : public KyRxNonBlittableType<KyCmColor> {
public:
    KyCmColorValueType() : KyRxNonBlittableType<KyCmColor>(L"KyCmColor", nullptr) {}

    int subToString(const void* instance, wchar_t* buffer, size_t size,
                    StringFormat format) const override {
        const auto& color = *static_cast<const KyCmColor*>(instance);
        if (format != kStringFormatLocalized) {
            return putText(color.colorNameForDisplay().kwszPtr(), buffer, size);
        }
        const KyString text = displayName(color, [](unsigned int id, const wchar_t* global) {
            KyString local = KyRxResourceTables::text(0, id);
            return local.isEmpty() ? KyString(global) : local;
        });
        return putText(text.kwszPtr(), buffer, size);
    }
};

}  // namespace

KyCmColor::KyCmColor() : m_value(pack(kByLayer, kACIbyLayer)) {}

KyCmColor::KyCmColor(const KyCmColor& other) = default;

KyCmColor& KyCmColor::operator=(const KyCmColor& other) = default;

KyCmColor::~KyCmColor() = default;

bool KyCmColor::operator==(const KyCmColor& other) const {
    return m_value == other.m_value && m_colorName.compare(other.m_colorName) == 0 &&
           m_bookName.compare(other.m_bookName) == 0;
}

Kyro::ErrorStatus KyCmColor::setColorMethod(ColorMethod method) {
    switch (method) {
        case kByLayer:
            return setColorIndex(kACIbyLayer);
        case kByBlock:
            return setColorIndex(kACIbyBlock);
        case kNone:
            return setColorIndex(kACInone);
        case kForeground:
            m_value = pack(kForeground, kACIWhite);
            m_colorName.setEmpty();
            m_bookName.setEmpty();
            return Kyro::eOk;
        case kByColor:
        case kByACI:
            break;
    }
    return Kyro::eInvalidInput;
}

unsigned short KyCmColor::colorIndex() const {
    if (isByColor()) {
        return lookUpACI(red(), green(), blue());
    }
    return static_cast<unsigned short>(m_value & 0xFFFFu);
}

Kyro::ErrorStatus KyCmColor::setColorIndex(unsigned short index) {
    unsigned int method = kByACI;
    if (index == kACIbyBlock) {
        method = kByBlock;
    } else if (index == kACIbyLayer) {
        method = kByLayer;
    } else if (index == kACInone) {
        method = kNone;
    } else if (index > 255) {
        return Kyro::eInvalidInput;
    }
    m_value = pack(method, index);
    m_colorName.setEmpty();
    m_bookName.setEmpty();
    return Kyro::eOk;
}

Kyro::ErrorStatus KyCmColor::setRGB(unsigned char red, unsigned char green, unsigned char blue) {
    m_value = pack(kByColor, rgb(red, green, blue));
    m_colorName.setEmpty();
    m_bookName.setEmpty();
    return Kyro::eOk;
}

unsigned char KyCmColor::red() const {
    switch (colorMethod()) {
        case kByColor:
            return static_cast<unsigned char>(m_value >> 16);
        case kByACI:
        case kForeground:
            return static_cast<unsigned char>(lookUpRGB(colorIndex()) >> 16);
        default:
            return 0;
    }
}

unsigned char KyCmColor::green() const {
    switch (colorMethod()) {
        case kByColor:
            return static_cast<unsigned char>(m_value >> 8);
        case kByACI:
        case kForeground:
            return static_cast<unsigned char>(lookUpRGB(colorIndex()) >> 8);
        default:
            return 0;
    }
}

unsigned char KyCmColor::blue() const {
    switch (colorMethod()) {
        case kByColor:
            return static_cast<unsigned char>(m_value);
        case kByACI:
        case kForeground:
            return static_cast<unsigned char>(lookUpRGB(colorIndex()));
        default:
            return 0;
    }
}

Kyro::ErrorStatus KyCmColor::setColor(unsigned int packed) {
    const unsigned int payload = packed & 0xFFFFFFu;
    switch (packed >> 24) {
        case kByLayer:
            return setColorIndex(kACIbyLayer);
        case kByBlock:
            return setColorIndex(kACIbyBlock);
        case kNone:
            return setColorIndex(kACInone);
        case kForeground:
            return setColorMethod(kForeground);
        case kByColor:
            return setRGB(static_cast<unsigned char>(payload >> 16),
                          static_cast<unsigned char>(payload >> 8),
                          static_cast<unsigned char>(payload));
        case kByACI:
            if (payload >= 1 && payload <= 255) {
                return setColorIndex(static_cast<unsigned short>(payload));
            }
            break;
        default:
            break;
    }
    return Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyCmColor::setNames(const wchar_t* colorName, const wchar_t* bookName) {
    const bool hasColor = colorName != nullptr && colorName[0] != L'\0';
    const bool hasBook = bookName != nullptr && bookName[0] != L'\0';
    if (!isByColor()) {
        return Kyro::eNotApplicable;
    }
    if (hasBook && !hasColor) {
        return Kyro::eInvalidInput;
    }
    m_colorName = hasColor ? colorName : L"";
    m_bookName = hasBook ? bookName : L"";
    return Kyro::eOk;
}

KyString KyCmColor::colorNameForDisplay() const {
    return displayName(*this, [](unsigned int, const wchar_t* global) { return KyString(global); });
}

unsigned int KyCmColor::lookUpRGB(unsigned short index) {
    return index < kPalette.size() ? kPalette[index] : 0;
}

unsigned short KyCmColor::lookUpACI(unsigned char red, unsigned char green, unsigned char blue) {
    unsigned short best = 1;
    long bestDistance = -1;
    for (unsigned short index = 1; index < 256; ++index) {
        const unsigned int entry = kPalette[index];
        const long dr = static_cast<long>((entry >> 16) & 0xFF) - red;
        const long dg = static_cast<long>((entry >> 8) & 0xFF) - green;
        const long db = static_cast<long>(entry & 0xFF) - blue;
        const long distance = dr * dr + dg * dg + db * db;
        if (bestDistance < 0 || distance < bestDistance) {
            best = index;
            bestDistance = distance;
            if (distance == 0) {
                break;
            }
        }
    }
    return best;
}

template <>
const KyRxValueType& KyRxValueType::Desc<KyCmColor>::value() {
    static const KyRxValueType* const s_type = new KyCmColorValueType();
    return *s_type;
}
