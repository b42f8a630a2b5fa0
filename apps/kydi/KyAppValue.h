// KyAppValue: one value as the kydi program reads it in a script and prints
// it: true and false, numbers, texts, colours (an index, a true colour, a
// colour of a colour book, ByLayer, ByBlock), transparencies (an alpha,
// ByLayer, ByBlock) and object ids by handle.
//
// The written forms:
//   true  false  12  -0.5  Walls  "Exterior walls"
//   aci:1  rgb:255,128,0  book:RAL$3020  bylayer  byblock  alpha:128  #1F
// A word in double quotes is always a text; quotes may be left out of a text
// without blanks that would not read as another form. ByLayer and ByBlock
// stand for the colour and the transparency alike: what receives the value
// tells which.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

class KyCmColor;
class KyCmTransparency;

class KyAppValue {
public:
    enum class Kind {
        kBoolean,
        kNumber,
        kText,
        kColorIndex,
        kTrueColor,
        kBookColor,
        kByLayer,
        kByBlock,
        kAlpha,
        kObject,
    };

    static KyAppValue boolean(bool value);
    static KyAppValue number(double value);
    static KyAppValue text(std::string text);
    static KyAppValue colorIndex(int index);
    static KyAppValue trueColor(int red, int green, int blue);
    static KyAppValue bookColor(std::string book, std::string name);
    static KyAppValue byLayer();
    static KyAppValue byBlock();
    static KyAppValue alpha(int alpha);
    static KyAppValue object(std::uint64_t handle);

    // Reads one word of a script. `quoted` is true when the word was written
    // in double quotes: then it is a text whatever it holds. Null with
    // `error` for a word that starts like a form and is no valid one
    // ("aci:300", "#XYZ").
    static std::optional<KyAppValue> parse(const std::string& word, bool quoted,
                                           std::string& error);

    // The value as a script writes it; parse reads it back as an equal value.
    std::string format() const;

    Kind kind() const { return m_kind; }
    bool asBoolean() const { return m_number != 0.0; }
    double asNumber() const { return m_number; }
    // The text of a text; the book of a book colour.
    const std::string& asText() const { return m_text; }
    // The colour name of a book colour.
    const std::string& colorName() const { return m_name; }
    // The index of an index colour, the alpha of an alpha.
    int asInteger() const { return static_cast<int>(m_number); }
    int red() const { return m_rgb[0]; }
    int green() const { return m_rgb[1]; }
    int blue() const { return m_rgb[2]; }
    std::uint64_t handle() const { return m_handle; }

    bool isColor() const;
    bool isTransparency() const;
    // The colour of a colour value (a book colour as the process's colour
    // books know it); false for another value or an unknown book colour.
    bool toColor(KyCmColor& color) const;
    // The transparency of an alpha, ByLayer or ByBlock.
    bool toTransparency(KyCmTransparency& transparency) const;

    bool operator==(const KyAppValue& other) const;

    // A number as the program prints it: integers without a fraction, others
    // in the fewest digits that read back as the same number.
    static std::string formatNumber(double value);
    // Reads a whole word as a number; false for anything else.
    static bool parseNumber(const std::string& word, double& value);
    // A text in double quotes, with quotes and backslashes escaped.
    static std::string quote(const std::string& text);

private:
    explicit KyAppValue(Kind kind) : m_kind(kind) {}

    Kind m_kind;
    double m_number = 0.0;
    std::string m_text;
    std::string m_name;
    int m_rgb[3] = {0, 0, 0};
    std::uint64_t m_handle = 0;
};
