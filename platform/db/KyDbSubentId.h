// KyDbSubentId: which part of an entity a selection means: a kind of part
// and its index among the parts of that kind. The default is the null
// sub-entity (kind 0), which names no part.
#pragma once

#include "KyPlatformExport.h"

namespace KyDb {

// The kinds of parts.
enum SubentType : int {
    kNullSubentType = 0,
    kFaceSubentType = 1,
    kEdgeSubentType = 2,
    kVertexSubentType = 3,
    // An attribute of a block reference, by its place among the reference's
    // attributes that are not erased.
    kAttributeSubentType = 4,
};

}  // namespace KyDb

class KYPLATFORM_API KyDbSubentId {
public:
    constexpr KyDbSubentId() = default;
    constexpr KyDbSubentId(KyDb::SubentType type, int index) : m_type(type), m_index(index) {}

    KyDb::SubentType type() const { return m_type; }
    void setType(KyDb::SubentType type) { m_type = type; }
    int index() const { return m_index; }
    void setIndex(int index) { m_index = index; }
    bool isNull() const { return m_type == KyDb::kNullSubentType; }

    bool operator==(const KyDbSubentId& other) const = default;

private:
    KyDb::SubentType m_type = KyDb::kNullSubentType;
    int m_index = 0;
};
