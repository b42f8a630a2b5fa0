// KyCmTransparency: the transparency of an object, one 32-bit word. The top
// byte is the method: taken from the layer, from the block, or given by an
// alpha in the low byte (0 fully transparent, 255 opaque); a fourth method
// marks a value that could not be read. A new transparency is ByLayer.
#pragma once

#include <cstdint>

#include "KyPlatformExport.h"
#include "rx/KyRxValueType.h"

class KYPLATFORM_API KyCmTransparency {
public:
    enum TransparencyMethod : unsigned char {
        kByLayer = 0,
        kByBlock = 1,
        kByAlpha = 2,
        kErrorValue = 3,
    };

    KyCmTransparency() = default;
    // A transparency given by alpha.
    explicit KyCmTransparency(std::uint8_t alpha) { setAlpha(alpha); }

    TransparencyMethod method() const { return static_cast<TransparencyMethod>(m_value >> 24); }
    // Sets the method; kByAlpha makes the value opaque (alpha 255).
    void setMethod(TransparencyMethod method);
    // The alpha of a ByAlpha value; 255 (opaque) for the other methods.
    std::uint8_t alpha() const {
        return isByAlpha() ? static_cast<std::uint8_t>(m_value & 0xFFu) : 255;
    }
    // Makes the value ByAlpha with this alpha.
    void setAlpha(std::uint8_t alpha) { m_value = (std::uint32_t{kByAlpha} << 24) | alpha; }

    bool isByLayer() const { return method() == kByLayer; }
    bool isByBlock() const { return method() == kByBlock; }
    bool isByAlpha() const { return method() == kByAlpha; }
    bool isInvalid() const { return method() == kErrorValue; }
    // A value with no transparency: ByAlpha at 255.
    bool isSolid() const { return isByAlpha() && alpha() == 255; }
    bool isClear() const { return isByAlpha() && alpha() == 0; }

    // The 32-bit word as stored in a drawing.
    std::uint32_t serializeOut() const { return m_value; }
    void serializeIn(std::uint32_t value) { m_value = value; }

    bool operator==(const KyCmTransparency& other) const { return m_value == other.m_value; }
    bool operator!=(const KyCmTransparency& other) const { return m_value != other.m_value; }

private:
    std::uint32_t m_value = 0;
};

static_assert(sizeof(KyCmTransparency) == 4, "a transparency is one 32-bit word");

// Named "KyCmTransparency". Text: "ByLayer", "ByBlock" (in the current
// language in the localized format), the alpha as a number, and an empty
// text for the error value.
template <>
KYPLATFORM_API const KyRxValueType& KyRxValueType::Desc<KyCmTransparency>::value();
