// Internal to the drawing database; not part of the platform's interface.
//
// KyDbPropertyExpression: the KyRxPropertyExpressionPE of one database class,
// over the rows of its property table that have a formula access. It answers
// for the members made from those rows; any other member is handed to the
// extension of the class's parent, so a class with formulas of its own keeps
// those of the class it derives from. kydbiAddFormulas registers one with
// every class whose rows have formulas, when the class is registered.
#pragma once

#include <cstddef>
#include <iterator>

#include "db/KyDbPropertyTable.h"
#include "rx/KyRxPropertyExpressionPE.h"

class KyDbPropertyExpression : public KyRxPropertyExpressionPE {
public:
    KyDbPropertyExpression(const KyRxClass* owner, const KyDbPropertyRow* rows, std::size_t count)
        : m_owner(owner), m_rows(rows), m_count(count) {}

    bool isExpression(const KyRxObject* object, const KyRxMember* member) const override;
    KyString getExpression(const KyRxObject* object, const KyRxMember* member) const override;
    Kyro::ErrorStatus setExpression(KyRxObject* object, const KyRxMember* member,
                                    const wchar_t* text) const override;

    // True when a row of `rows` has a formula access.
    static bool anyFormula(const KyDbPropertyRow* rows, std::size_t count);

private:
    // The formula access of `member` when it is a property made from one of
    // the rows that may hold a formula; null otherwise.
    const KyDbFormulaAccess* accessOf(const KyRxMember* member) const;
    // The extension registered along the parents of the class; null if none.
    const KyRxPropertyExpressionPE* inherited() const;

    const KyRxClass* m_owner;
    const KyDbPropertyRow* m_rows;
    std::size_t m_count;
};

// Registers the extension over `Rows` with `cls` when a row has a formula;
// answers `cls`.
template <const auto& Rows>
KyRxClass* kydbiAddFormulas(KyRxClass* cls) {
    if (KyDbPropertyExpression::anyFormula(Rows, std::size(Rows))) {
        static KyDbPropertyExpression s_extension(cls, Rows, std::size(Rows));
        cls->addX(KyRxPropertyExpressionPE::desc(), &s_extension);
    }
    return cls;
}
