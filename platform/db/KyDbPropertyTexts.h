// Internal to the drawing database; not part of the platform's interface.
//
// KyDbPropertyTexts: the numbers of the platform's resource texts (table 0)
// that name the reflected properties and the classes of the database. A
// property name has one local name and one description wherever it stands,
// so "Color" reads the same on a layer and on a line.
#pragma once

class KyDbPropertyTexts {
public:
    // The description of a property is this far behind its name.
    static constexpr unsigned kDescriptionOffset = 100;

    // 0 when the platform has no text for the name.
    static unsigned nameId(const wchar_t* propertyName);
    static unsigned descriptionId(const wchar_t* propertyName);
    static unsigned classNameId(const wchar_t* className);
};
