// A resource module: the localised texts of one module, read from
// "<module>.kyres" on the resource search path. Texts are looked up by number
// in the platform's current language, falling back to the base language.
//
// File format (UTF-8): a line "[language]" starts a section ("[base]" or a
// language tag such as "[de]"); "id = text" gives a text; "#" starts a comment
// line; "\n", "\t" and "\\" are escapes in texts. A module may hold several
// tables of texts, whose numbers are counted apart: "[language:table]"
// starts a section of table `table` ("[base:1]", "[de:3]"); "[language]" is
// table 0.
#pragma once

#include <memory>

#include "KyPlatformExport.h"

class KyString;

class KYPLATFORM_API KyRxResourceInstance {
public:
    // Loads the module by name ("kyplatform" finds "kyplatform.kyres"); a name
    // with a path separator or the ".kyres" ending is taken as a file path.
    explicit KyRxResourceInstance(const wchar_t* moduleName);
    KyRxResourceInstance(const KyRxResourceInstance&) = delete;
    KyRxResourceInstance& operator=(const KyRxResourceInstance&) = delete;
    ~KyRxResourceInstance();

    bool isLoaded() const;
    // The text of `id` in the current language, else in the base language;
    // null when the module has no such text.
    const wchar_t* text(unsigned id) const;
    // The same, in table `table` of the module.
    const wchar_t* text(unsigned id, unsigned table) const;

    // True when the module has a section for `language` ("de"); the base
    // language ("" or "base") always counts.
    bool hasLanguage(const wchar_t* language) const;

    // The current language of the process: "" (or "base") for the base
    // language, otherwise a tag such as "de". Affects every later lookup.
    static void setLanguage(const wchar_t* language);
    static const wchar_t* language();
    // Directories searched for resource modules, after KYDI_RESOURCE_PATH and
    // before the built-in locations.
    static void addSearchPath(const wchar_t* directory);

private:
    struct Module;
    std::shared_ptr<const Module> m_module;
};
