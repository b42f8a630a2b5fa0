// KyRefMemberList: the members a kind of record, entity or object has in a
// drawing file: their names, the default of each optional member, and which
// are points. The reader asks it which members a file gave and which it does
// not know (KyRefDrawingExtras::Form); the writer asks it to give the written
// JSON the shape the file had: members the file left out stay out while they
// hold their default (also inside the objects of a member's value), points
// the file gave as [x, y] are written so again, and unknown members come
// back.
#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "KyRefDrawingExtras.h"
#include "KyRefJson.h"

struct KyRefMember {
    const char* name;
    // The default as JSON text; null for a required member, or an optional
    // one that is absent when unset.
    const char* defaultJson = nullptr;
    bool point = false;
    // For an object value, or an array of objects: the members each object
    // may have, separated by blanks. Others are kept as unknown members. A
    // member written `name=default` (JSON without blanks) has a default: an
    // object that left it out gets it back without it while it holds it.
    const char* nested = nullptr;
};

class KyRefMemberList {
public:
    // `common` first (the members every entity has), then the kind's own.
    KyRefMemberList(std::initializer_list<KyRefMember> own);
    KyRefMemberList(const KyRefMemberList& common, std::initializer_list<KyRefMember> own);

    int size() const { return static_cast<int>(m_members.size()); }
    // The index of `name`, -1 when it is not listed.
    int indexOf(std::string_view name) const;

    // The form of `object` as a file gave it: listed members given, points
    // given with three coordinates, unknown members (any member neither
    // listed nor in `alsoKnown`: "handle" for what has one, and "type" for
    // entities and objects; a table record keeps a "type" of its own, a
    // layer state a "handle", as unknown members).
    KyRefDrawingExtras::Form formOf(const KyRefJson& object,
                                    std::initializer_list<std::string_view> alsoKnown = {}) const;
    // Gives `out`, as the writer made it with every member, the shape of
    // `form` (null: an object no file gave, which leaves out every default).
    void shape(KyRefJson& out, const KyRefDrawingExtras::Form* form) const;
    // Puts the members of `unknown` into `out`. Objects met in both are
    // merged member by member, and so are the objects of arrays of the same
    // length; otherwise what `out` holds stays.
    static void mergeUnknown(KyRefJson& out, const KyRefJson& unknown);

private:
    struct Entry {
        KyRefMember member;
        KyRefJson defaultValue;
        bool hasDefault = false;
    };
    void add(const KyRefMember& member);

    std::vector<Entry> m_members;
};
