// The attribute classes of the reflection library.
#pragma once

#include "base/KyString.h"
#include "rx/KyRxAttribute.h"

class KyRxPropertyBase;
class KyRxValue;

// A named group a member belongs to ("SelectionContext").
class KYPLATFORM_API KyRxAffinityAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxAffinityAttribute);
    explicit KyRxAffinityAttribute(const wchar_t* name) : m_name(name) {}
    const wchar_t* name() const { return m_name.kwszPtr(); }

private:
    KyString m_name;
};

// Marks a property whose values add up over several objects (an area).
class KYPLATFORM_API KyRxCumulativeAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxCumulativeAttribute);
};

// Marks an enumeration whose values are bit flags, not single tags.
class KYPLATFORM_API KyRxFlagsAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxFlagsAttribute);
};

// Localised texts come from resource tables: table 0 is the platform's own
// module, and a host may name a module for any table with setTableModule. A
// table no module is named for is read from the platform's own module, from
// its sections of that table (KyRxResourceInstance.h): the platform ships
// texts of tables 1 (descriptions) and 3 (names of layout and view settings)
// there.
class KYPLATFORM_API KyRxResourceTables {
public:
    static void setTableModule(unsigned table, const wchar_t* moduleName);
    // The text of `id` in `table`, in the current language; empty if none.
    static KyString text(unsigned table, unsigned id);
};

// The description of a class or member: text `id` of resource table `table`.
class KYPLATFORM_API KyRxDescriptionAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxDescriptionAttribute);
    explicit KyRxDescriptionAttribute(unsigned id, unsigned table = 0) : m_id(id), m_table(table) {}
    unsigned id() const { return m_id; }
    unsigned table() const { return m_table; }
    KyString description() const;
    // The description of a member or class through its attribute; empty when
    // it has none or the text is missing.
    static KyString getDescription(const KyRxObject* object);

private:
    unsigned m_id;
    unsigned m_table;
};

// The local name of a class, member or enumeration tag.
class KYPLATFORM_API KyRxLocalizedNameAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxLocalizedNameAttribute);
    explicit KyRxLocalizedNameAttribute(unsigned id, unsigned table = 0)
        : m_id(id), m_table(table) {}
    unsigned id() const { return m_id; }
    unsigned table() const { return m_table; }
    KyString localizedName() const;
    // The local name of a member or class through its attribute; without one,
    // or without the text, the object's own name.
    static KyString getLocalizedName(const KyRxObject* object);

private:
    unsigned m_id;
    unsigned m_table;
};

// Which property of a referred item to show ("Name").
class KYPLATFORM_API KyRxDisplayAsAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxDisplayAsAttribute);
    explicit KyRxDisplayAsAttribute(const wchar_t* path) : m_path(path) {}
    const wchar_t* path() const { return m_path.kwszPtr(); }

private:
    KyString m_path;
};

// Where a member's values come from: a path of property names such as
// "/LinetypeTableId/Items". A leading "/" starts at the root of the object
// (its database for a database object); each further step reads the named
// property and goes on from the object its value stands for.
class KYPLATFORM_API KyRxRefersToAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxRefersToAttribute);
    explicit KyRxRefersToAttribute(const wchar_t* path) : m_path(path) {}
    const wchar_t* path() const { return m_path.kwszPtr(); }

    // Finds a property by name on an object; null when absent.
    using Resolve = const KyRxPropertyBase* (*)(const KyRxObject* object, const wchar_t* name);
    // Turns a value read on the way into the host's form (a data item into an id).
    using Convert = bool (*)(const KyRxPropertyBase* property, KyRxValue& value);
    // The property named by the last step of `path`, reached from `object`;
    // null when a step can't be followed. Null `resolve` asks the query engine.
    static const KyRxPropertyBase* parseReference(const wchar_t* path, const KyRxObject* object,
                                                  Resolve resolve, Convert convert);

    // How a path reaches objects: the root of an object, and the object that a
    // value stands for (opened for read, closed with `close`). The database
    // library installs these.
    struct Hooks {
        const KyRxObject* (*root)(const KyRxObject* object) = nullptr;
        KyRxObject* (*open)(const KyRxValue& value) = nullptr;
        void (*close)(KyRxObject* object) = nullptr;
    };
    static void setHooks(const Hooks& hooks);

private:
    KyString m_path;
};

// Where a property stands in a property panel: a category and a weight.
class KYPLATFORM_API KyRxUiPlacementAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxUiPlacementAttribute);
    KyRxUiPlacementAttribute(const wchar_t* category, unsigned weight)
        : m_category(category), m_weight(weight) {}
    const wchar_t* category() const { return m_category.kwszPtr(); }
    unsigned weight() const { return m_weight; }

private:
    KyString m_category;
    unsigned m_weight;
};

// The kind of unit a number is in (0 a scale, 1 a text size, 4 an area ...).
class KYPLATFORM_API KyRxUnitTypeAttribute : public KyRxAttribute {
public:
    KYRX_DECLARE_MEMBERS(KyRxUnitTypeAttribute);
    explicit KyRxUnitTypeAttribute(int unitType) : m_unitType(unitType) {}
    int unitType() const { return m_unitType; }

private:
    int m_unitType;
};
