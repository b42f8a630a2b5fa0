// KyCmColor: the colour of an object. A colour is taken from the layer
// (ByLayer), from the block the object stands in (ByBlock), from the 256-colour
// index palette (ByACI, indices 1 to 255), or given as red, green and blue
// (ByColor, a true colour). A true colour may carry a colour name and the
// name of the colour book it comes from. A new colour is ByLayer, the colour
// that an object without a colour of its own shows.
#pragma once

#include "KyPlatformExport.h"
#include "base/KyString.h"
#include "base/KyroErrorStatus.h"
#include "rx/KyRxValueType.h"

class KYPLATFORM_API KyCmColor {
public:
    // How the colour is given; the method is the top byte of color().
    enum ColorMethod : unsigned char {
        kByLayer = 0xC0,
        kByBlock = 0xC1,
        kByColor = 0xC2,     // red, green, blue
        kByACI = 0xC3,       // an index of the palette
        kForeground = 0xC5,  // the drawing's foreground colour
        kNone = 0xC8,        // no colour at all
    };

    // Indices with a meaning of their own for setColorIndex and colorIndex.
    static constexpr unsigned short kACIbyBlock = 0;
    static constexpr unsigned short kACIRed = 1;
    static constexpr unsigned short kACIYellow = 2;
    static constexpr unsigned short kACIGreen = 3;
    static constexpr unsigned short kACICyan = 4;
    static constexpr unsigned short kACIBlue = 5;
    static constexpr unsigned short kACIMagenta = 6;
    static constexpr unsigned short kACIWhite = 7;
    static constexpr unsigned short kACIbyLayer = 256;
    static constexpr unsigned short kACInone = 257;

    KyCmColor();
    KyCmColor(const KyCmColor& other);
    KyCmColor& operator=(const KyCmColor& other);
    virtual ~KyCmColor();

    // Same method, same index or red, green and blue, same names.
    bool operator==(const KyCmColor& other) const;
    bool operator!=(const KyCmColor& other) const { return !(*this == other); }

    ColorMethod colorMethod() const { return static_cast<ColorMethod>(m_value >> 24); }
    // ByLayer, ByBlock, Foreground or None; the other methods need a colour
    // (setColorIndex, setRGB) and answer eInvalidInput here.
    Kyro::ErrorStatus setColorMethod(ColorMethod method);

    // 0 ByBlock, 256 ByLayer, 1 to 255 the index, 257 None. A true colour
    // answers the index of the nearest palette colour, Foreground 7.
    unsigned short colorIndex() const;
    // 0 makes the colour ByBlock, 256 ByLayer, 257 None, 1 to 255 an index;
    // a larger index answers eInvalidInput and leaves the colour alone.
    // Names are dropped.
    virtual Kyro::ErrorStatus setColorIndex(unsigned short index);
    // Makes a true colour; names are dropped.
    virtual Kyro::ErrorStatus setRGB(unsigned char red, unsigned char green, unsigned char blue);

    // Red, green and blue of a true colour, of the palette entry of an index
    // and of Foreground (white); 0 for the other methods.
    unsigned char red() const;
    unsigned char green() const;
    unsigned char blue() const;

    bool isByLayer() const { return colorMethod() == kByLayer; }
    bool isByBlock() const { return colorMethod() == kByBlock; }
    bool isByColor() const { return colorMethod() == kByColor; }
    bool isByACI() const { return colorMethod() == kByACI; }
    bool isForeground() const { return colorMethod() == kForeground; }
    bool isNone() const { return colorMethod() == kNone; }

    // The packed form of an object's colour: the method in the top byte, then
    // red, green and blue for a true colour, or the index in the low 16 bits
    // (256 for ByLayer, 0 for ByBlock, 7 for Foreground, 257 for None).
    unsigned int color() const { return m_value; }
    // Takes a packed colour; an unknown method or an index out of range
    // answers eInvalidInput and leaves the colour alone. Names are dropped.
    Kyro::ErrorStatus setColor(unsigned int packed);

    // Names a true colour: `colorName` alone, or with the book it comes from.
    // eNotApplicable for a colour that is not a true colour, eInvalidInput for
    // a book without a colour name. Empty names drop both.
    virtual Kyro::ErrorStatus setNames(const wchar_t* colorName, const wchar_t* bookName = nullptr);
    virtual const wchar_t* colorName() const { return m_colorName.kwszPtr(); }
    virtual const wchar_t* bookName() const { return m_bookName.kwszPtr(); }
    bool hasColorName() const { return !m_colorName.isEmpty(); }
    bool hasBookName() const { return !m_bookName.isEmpty(); }

    // The name a user sees: "BOOK$NAME" for a book colour, the colour name of
    // a named colour, "ByLayer", "ByBlock", "red" ... "white" for indices 1
    // to 7, the number of any other index, "r,g,b" for a true colour,
    // "Foreground", "None".
    virtual KyString colorNameForDisplay() const;

    // The palette: 0x00RRGGBB of an index 0 to 255 (0 for larger indices),
    // and the index 1 to 255 nearest to a colour (the lowest of equals).
    static unsigned int lookUpRGB(unsigned short index);
    static unsigned short lookUpACI(unsigned char red, unsigned char green, unsigned char blue);

private:
    unsigned int m_value;
    KyString m_colorName;
    KyString m_bookName;
};

// Named "KyCmColor"; a non-blittable type whose payload lives in a heap block.
// Text: colorNameForDisplay, with the reserved words and the names of indices
// 1 to 7 in the current language in the localized format. Equality: ==.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyCmColor>::value();
