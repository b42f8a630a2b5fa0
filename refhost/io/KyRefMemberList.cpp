#include "KyRefMemberList.h"

#include <cctype>
#include <memory>
#include <string>

namespace {

// Texts equal without regard to case: the defaults that are texts are names
// ("ByLayer", "Standard"), which a file may spell in any case.
bool sameTextNoCase(const std::string& a, const std::string& b) {
    if (a == b) {
        return true;
    }
    if (a.size() != b.size()) {
        return kyrefWide(a).compareNoCase(kyrefWide(b)) == 0;
    }
    for (std::size_t i = 0; i < a.size(); ++i) {
        const auto x = static_cast<unsigned char>(a[i]);
        const auto y = static_cast<unsigned char>(b[i]);
        if (x >= 0x80 || y >= 0x80) {
            return kyrefWide(a).compareNoCase(kyrefWide(b)) == 0;
        }
        if (std::tolower(x) != std::tolower(y)) {
            return false;
        }
    }
    return true;
}

// Two JSON values that mean the same value of a member: points compare with
// a missing third coordinate taken as 0, numbers by value, texts without
// regard to case.
bool sameValue(const KyRefJson& a, const KyRefJson& b, bool point) {
    if (a.is_string() && b.is_string()) {
        return sameTextNoCase(a.get_ref<const std::string&>(), b.get_ref<const std::string&>());
    }
    if (point && a.is_array() && b.is_array() && a.size() >= 2 && b.size() >= 2) {
        for (std::size_t i = 0; i < 3; ++i) {
            const double x = i < a.size() && a[i].is_number() ? a[i].get<double>() : 0.0;
            const double y = i < b.size() && b[i].is_number() ? b[i].get<double>() : 0.0;
            if (x != y) {
                return false;
            }
        }
        return a.size() <= 3 && b.size() <= 3;
    }
    return a == b;
}

// Two JSON values equal but for the case of their texts: a member that
// names records as the writer writes it and as the file spelled it.
bool sameButCase(const KyRefJson& a, const KyRefJson& b) {
    if (a.is_string() && b.is_string()) {
        return sameTextNoCase(a.get_ref<const std::string&>(), b.get_ref<const std::string&>());
    }
    if (a.type() != b.type() || a.size() != b.size()) {
        return false;
    }
    if (a.is_array()) {
        for (std::size_t i = 0; i < a.size(); ++i) {
            if (!sameButCase(a[i], b[i])) {
                return false;
            }
        }
        return true;
    }
    if (a.is_object()) {
        for (auto it = a.begin(); it != a.end(); ++it) {
            const auto other = b.find(it.key());
            if (other == b.end() || !sameButCase(*it, *other)) {
                return false;
            }
        }
        return true;
    }
    return a == b;
}

// Calls `visit(name, defaultJson)` for each blank-separated word of `names`:
// a member's name, or `name=default` for a member with a default (JSON text
// without blanks); `defaultJson` is empty for a member without one.
template <typename Visit>
void forEachListed(const char* names, Visit visit) {
    std::string_view rest(names);
    while (!rest.empty()) {
        const std::size_t blank = rest.find(' ');
        const std::string_view word = rest.substr(0, blank);
        const std::size_t equals = word.find('=');
        visit(word.substr(0, equals),
              equals == std::string_view::npos ? std::string_view() : word.substr(equals + 1));
        if (blank == std::string_view::npos) {
            break;
        }
        rest.remove_prefix(blank + 1);
    }
}

// True when `name` is one of the members `names` lists.
bool isListed(const char* names, std::string_view name) {
    bool listed = false;
    forEachListed(names, [&](std::string_view listedName, std::string_view) {
        listed = listed || listedName == name;
    });
    return listed;
}

// The members with a default that `nested` lists and `object` leaves out,
// with their defaults; null when none.
KyRefJson leftOutOf(const KyRefJson& object, const char* nested) {
    KyRefJson leftOut;
    forEachListed(nested, [&](std::string_view name, std::string_view defaultJson) {
        const std::string key(name);
        if (!defaultJson.empty() && !object.contains(key)) {
            leftOut[key] = KyRefJson::parse(defaultJson);
        }
    });
    return leftOut;
}

// The members of `object` that `nested` does not list; null when none.
KyRefJson unlistedOf(const KyRefJson& object, const char* nested) {
    KyRefJson unlisted;
    for (auto it = object.begin(); it != object.end(); ++it) {
        if (!isListed(nested, it.key())) {
            unlisted[it.key()] = *it;
        }
    }
    return unlisted;
}

// What `part` finds in each object inside a member's value, in the value's
// shape: an object, or an array with one object for each item. Null when it
// finds nothing.
template <typename Part>
KyRefJson nestedPart(const KyRefJson& value, const char* nested, Part part) {
    if (value.is_object()) {
        return part(value, nested);
    }
    if (!value.is_array()) {
        return KyRefJson();
    }
    KyRefJson items = KyRefJson::array();
    bool any = false;
    for (const KyRefJson& item : value) {
        KyRefJson found = item.is_object() ? part(item, nested) : KyRefJson();
        any = any || !found.is_null();
        items.push_back(found.is_null() ? KyRefJson::object() : std::move(found));
    }
    return any ? items : KyRefJson();
}

// Puts `found`, when it isn't null, into `*holder` (made when null) as `name`.
void keepPart(std::unique_ptr<KyRefJson>& holder, const std::string& name, KyRefJson found) {
    if (found.is_null()) {
        return;
    }
    if (!holder) {
        holder = std::make_unique<KyRefJson>(KyRefJson::object());
    }
    (*holder)[name] = std::move(found);
}

// Takes out of `out` the members `leftOut` names while they hold the default
// it gives them: objects met in both member by member, arrays of the same
// length item by item.
void dropLeftOut(KyRefJson& out, const KyRefJson& leftOut) {
    if (out.is_array() && leftOut.is_array() && out.size() == leftOut.size()) {
        for (std::size_t i = 0; i < out.size(); ++i) {
            dropLeftOut(out[i], leftOut[i]);
        }
        return;
    }
    if (!out.is_object() || !leftOut.is_object()) {
        return;
    }
    for (auto it = leftOut.begin(); it != leftOut.end(); ++it) {
        const auto found = out.find(it.key());
        if (found != out.end() && sameValue(*found, *it, false)) {
            out.erase(found);
        }
    }
}

}  // namespace

KyRefMemberList::KyRefMemberList(std::initializer_list<KyRefMember> own) {
    m_members.reserve(own.size());
    for (const KyRefMember& member : own) {
        add(member);
    }
}

KyRefMemberList::KyRefMemberList(const KyRefMemberList& common,
                                 std::initializer_list<KyRefMember> own)
    : m_members(common.m_members) {
    m_members.reserve(common.m_members.size() + own.size());
    for (const KyRefMember& member : own) {
        add(member);
    }
}

void KyRefMemberList::add(const KyRefMember& member) {
    Entry entry{member, KyRefJson(), member.defaultJson != nullptr};
    if (entry.hasDefault) {
        entry.defaultValue = KyRefJson::parse(member.defaultJson);
    }
    m_members.push_back(std::move(entry));
}

int KyRefMemberList::indexOf(std::string_view name) const {
    for (std::size_t i = 0; i < m_members.size(); ++i) {
        if (name == m_members[i].member.name) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

KyRefDrawingExtras::Form KyRefMemberList::formOf(
    const KyRefJson& object, std::initializer_list<std::string_view> alsoKnown) const {
    KyRefDrawingExtras::Form form;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const std::string& name = it.key();
        const int index = indexOf(name);
        if (index >= 0) {
            const KyRefMember& member = m_members[static_cast<std::size_t>(index)].member;
            form.present |= std::uint64_t{1} << index;
            if (member.point && it->is_array() && it->size() == 3) {
                form.threeD |= std::uint64_t{1} << index;
            }
            if (member.nested != nullptr) {
                keepPart(form.unknown, name, nestedPart(*it, member.nested, &unlistedOf));
                keepPart(form.leftOut, name, nestedPart(*it, member.nested, &leftOutOf));
            }
            continue;
        }
        bool known = false;
        for (const std::string_view also : alsoKnown) {
            known = known || name == also;
        }
        if (!known) {
            if (!form.unknown) {
                form.unknown = std::make_unique<KyRefJson>(KyRefJson::object());
            }
            (*form.unknown)[name] = *it;
        }
    }
    return form;
}

void KyRefMemberList::shape(KyRefJson& out, const KyRefDrawingExtras::Form* form) const {
    const std::uint64_t present = form != nullptr ? form->present : 0;
    const std::uint64_t threeD = form != nullptr ? form->threeD : 0;
    for (std::size_t i = 0; i < m_members.size(); ++i) {
        const Entry& entry = m_members[i];
        const auto found = out.find(entry.member.name);
        if (found == out.end()) {
            continue;
        }
        const std::uint64_t bit = std::uint64_t{1} << i;
        if (entry.hasDefault && (present & bit) == 0 &&
            sameValue(*found, entry.defaultValue, entry.member.point)) {
            out.erase(found);
            continue;
        }
        if (entry.member.point && (threeD & bit) == 0 && found->is_array() && found->size() == 3 &&
            (*found)[2].is_number() && (*found)[2].get<double>() == 0.0) {
            found->erase(2);
        }
    }
    if (form != nullptr && form->leftOut) {
        for (auto it = form->leftOut->begin(); it != form->leftOut->end(); ++it) {
            if (const auto found = out.find(it.key()); found != out.end()) {
                dropLeftOut(*found, *it);
            }
        }
    }
    if (form != nullptr && form->unknown) {
        mergeUnknown(out, *form->unknown);
    }
    if (form != nullptr && form->spelled) {
        for (auto it = form->spelled->begin(); it != form->spelled->end(); ++it) {
            const auto found = out.find(it.key());
            if (found != out.end() && sameButCase(*found, *it)) {
                *found = *it;
            }
        }
    }
}

void KyRefMemberList::mergeUnknown(KyRefJson& out, const KyRefJson& unknown) {
    for (auto it = unknown.begin(); it != unknown.end(); ++it) {
        const auto found = out.find(it.key());
        if (found == out.end()) {
            out[it.key()] = *it;
        } else if (found->is_object() && it->is_object()) {
            mergeUnknown(*found, *it);
        } else if (found->is_array() && it->is_array() && found->size() == it->size()) {
            for (std::size_t i = 0; i < it->size(); ++i) {
                if ((*found)[i].is_object() && (*it)[i].is_object()) {
                    mergeUnknown((*found)[i], (*it)[i]);
                }
            }
        }
    }
}
