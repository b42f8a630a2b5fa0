#include "db/KyDbPropertyExpression.h"

#include <cwchar>

#include "rx/KyRxMember.h"

bool KyDbPropertyExpression::isExpression(const KyRxObject* object,
                                          const KyRxMember* member) const {
    if (accessOf(member) != nullptr) {
        return true;
    }
    const KyRxPropertyExpressionPE* parent = inherited();
    return parent != nullptr && parent->isExpression(object, member);
}

KyString KyDbPropertyExpression::getExpression(const KyRxObject* object,
                                               const KyRxMember* member) const {
    if (const KyDbFormulaAccess* access = accessOf(member)) {
        KyString text;
        return access->get(object, text) == Kyro::eOk ? text : KyString();
    }
    const KyRxPropertyExpressionPE* parent = inherited();
    return parent != nullptr ? parent->getExpression(object, member) : KyString();
}

Kyro::ErrorStatus KyDbPropertyExpression::setExpression(KyRxObject* object,
                                                        const KyRxMember* member,
                                                        const wchar_t* text) const {
    if (const KyDbFormulaAccess* access = accessOf(member)) {
        return access->set(object, text);
    }
    const KyRxPropertyExpressionPE* parent = inherited();
    return parent != nullptr ? parent->setExpression(object, member, text) : Kyro::eNotApplicable;
}

bool KyDbPropertyExpression::anyFormula(const KyDbPropertyRow* rows, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (rows[i].formula.set != nullptr) {
            return true;
        }
    }
    return false;
}

const KyDbFormulaAccess* KyDbPropertyExpression::accessOf(const KyRxMember* member) const {
    if (member == nullptr || member->owner() != m_owner) {
        return nullptr;
    }
    for (std::size_t i = 0; i < m_count; ++i) {
        const KyDbPropertyRow& row = m_rows[i];
        if (row.formula.set != nullptr && std::wcscmp(row.name, member->name()) == 0) {
            return &row.formula;
        }
    }
    return nullptr;
}

const KyRxPropertyExpressionPE* KyDbPropertyExpression::inherited() const {
    const KyRxClass* parent = m_owner->myParent();
    return parent != nullptr ? kyrxCast<KyRxPropertyExpressionPE>(
                                   parent->queryX(KyRxPropertyExpressionPE::desc()))
                             : nullptr;
}
