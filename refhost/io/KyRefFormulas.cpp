#include "KyRefFormulas.h"

#include <string>

#include "KyRefReadContext.h"
#include "base/KyFormula.h"

namespace {

// "height" or "height, width": the members of `slots`, for messages.
std::string namesOf(std::initializer_list<KyRefFormulas::Slot> slots) {
    std::string names;
    for (const KyRefFormulas::Slot& slot : slots) {
        names += names.empty() ? "" : ", ";
        names += slot.member;
    }
    return names;
}

}  // namespace

void KyRefFormulas::read(const KyRefJsonNode& node, std::initializer_list<Slot> slots) {
    const auto formulas = node.optional("formulas");
    if (!formulas) {
        return;
    }
    if (!formulas->value().is_object()) {
        formulas->fail(std::string("expected an object of formulas by member name ({\"") +
                       slots.begin()->member + "\": \"2.5*2\"}), found " +
                       KyRefJsonNode::describe(formulas->value()));
    }
    for (auto it = formulas->value().begin(); it != formulas->value().end(); ++it) {
        const KyRefJsonNode formula(*it, *formulas, it.key());
        const Slot* slot = nullptr;
        for (const Slot& candidate : slots) {
            if (it.key() == candidate.member) {
                slot = &candidate;
            }
        }
        if (slot == nullptr) {
            formula.fail("expected a member that a formula can drive (" + namesOf(slots) +
                         "), found \"" + it.key() + "\"");
        }
        const KyString text = formula.asText();
        double value = 0.0;
        if (KyFormula::evaluate(text.kwszPtr(), value) != Kyro::eOk) {
            formula.fail(
                "expected a formula of numbers, + - * / and parentheses that does not divide by "
                "zero, found " +
                it->dump());
        }
        KyRefReadContext::check(slot->set(text.kwszPtr()), formula,
                                (std::string("a formula giving ") + slot->expected).c_str());
    }
}

void KyRefFormulas::write(KyRefJson& out,
                          std::initializer_list<std::pair<const char*, const KyString*>> formulas) {
    KyRefJson written = KyRefJson::object();
    for (const auto& [member, text] : formulas) {
        if (!text->isEmpty()) {
            written[member] = kyrefUtf8(*text);
        }
    }
    out["formulas"] = std::move(written);
}
