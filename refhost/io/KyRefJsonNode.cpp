#include "KyRefJsonNode.h"

#include <cmath>
#include <limits>

#include "KyRefDrawingError.h"

namespace {

// A key that can stand after a dot: letters, digits and underscores, not
// beginning with a digit.
bool isPlainWord(std::string_view key) {
    if (key.empty() || (key[0] >= '0' && key[0] <= '9')) {
        return false;
    }
    for (const char c : key) {
        const bool plain =
            (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
        if (!plain) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::string KyRefJsonNode::path() const {
    std::string out;
    appendPath(out);
    return out;
}

void KyRefJsonNode::appendPath(std::string& out) const {
    if (m_parent == nullptr) {
        return;
    }
    m_parent->appendPath(out);
    if (m_isItem) {
        out += '[';
        out += std::to_string(m_index);
        out += ']';
    } else if (isPlainWord(m_key)) {
        if (!out.empty()) {
            out += '.';
        }
        out += m_key;
    } else {
        out += "[";
        out += KyRefJson(std::string(m_key)).dump();
        out += "]";
    }
}

void KyRefJsonNode::fail(const std::string& problem) const {
    throw KyRefDrawingError(path(), problem);
}

const char* KyRefJsonNode::describe(const KyRefJson& value) {
    switch (value.type()) {
        case KyRefJson::value_t::null:
            return "null";
        case KyRefJson::value_t::object:
            return "an object";
        case KyRefJson::value_t::array:
            return "an array";
        case KyRefJson::value_t::string:
            return "a string";
        case KyRefJson::value_t::boolean:
            return "a boolean";
        case KyRefJson::value_t::number_integer:
        case KyRefJson::value_t::number_unsigned:
            return "an integer";
        case KyRefJson::value_t::number_float:
            return "a number";
        default:
            return "something else";
    }
}

const KyRefJsonNode& KyRefJsonNode::expectObject() const {
    if (!m_value.is_object()) {
        fail(std::string("expected an object, found ") + describe(m_value));
    }
    return *this;
}

const KyRefJsonNode& KyRefJsonNode::expectArray() const {
    if (!m_value.is_array()) {
        fail(std::string("expected an array, found ") + describe(m_value));
    }
    return *this;
}

bool KyRefJsonNode::has(std::string_view key) const {
    return m_value.is_object() && m_value.find(key) != m_value.end();
}

std::optional<KyRefJsonNode> KyRefJsonNode::optional(std::string_view key) const {
    const auto found = m_value.find(key);
    if (found == m_value.end()) {
        return std::nullopt;
    }
    return KyRefJsonNode(*found, *this, key);
}

KyRefJsonNode KyRefJsonNode::required(std::string_view key, const char* expected) const {
    const auto found = m_value.find(key);
    if (found == m_value.end()) {
        KyRefJsonNode(m_value, *this, key).fail(std::string("missing; expected ") + expected);
    }
    return KyRefJsonNode(*found, *this, key);
}

std::string KyRefJsonNode::asString() const {
    if (!m_value.is_string()) {
        fail(std::string("expected a string, found ") + describe(m_value));
    }
    return m_value.get_ref<const std::string&>();
}

KyString KyRefJsonNode::asText() const {
    if (!m_value.is_string()) {
        fail(std::string("expected a string, found ") + describe(m_value));
    }
    return kyrefWide(m_value.get_ref<const std::string&>());
}

double KyRefJsonNode::asNumber() const {
    if (!m_value.is_number()) {
        fail(std::string("expected a number, found ") + describe(m_value));
    }
    const double number = m_value.get<double>();
    if (!std::isfinite(number)) {
        fail("expected a finite number");
    }
    return number;
}

int KyRefJsonNode::asInteger(int low, int high) const {
    const auto range = [low, high] {
        return " from " + std::to_string(low) + " to " + std::to_string(high);
    };
    if (!m_value.is_number_integer()) {
        fail(std::string("expected an integer") + range() + ", found " + describe(m_value));
    }
    const bool negative = m_value.is_number_integer() && !m_value.is_number_unsigned() &&
                          m_value.get<std::int64_t>() < 0;
    const std::int64_t number =
        negative ? m_value.get<std::int64_t>()
                 : static_cast<std::int64_t>(std::min<std::uint64_t>(
                       m_value.get<std::uint64_t>(),
                       static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())));
    if (number < low || number > high) {
        fail("expected an integer" + range() + ", found " + m_value.dump());
    }
    return static_cast<int>(number);
}

bool KyRefJsonNode::asBool() const {
    if (!m_value.is_boolean()) {
        fail(std::string("expected true or false, found ") + describe(m_value));
    }
    return m_value.get<bool>();
}

KyString KyRefJsonNode::text(std::string_view key) const {
    return required(key, "a string").asText();
}

KyString KyRefJsonNode::text(std::string_view key, const wchar_t* otherwise) const {
    const auto member = optional(key);
    return member ? member->asText() : KyString(otherwise);
}

double KyRefJsonNode::number(std::string_view key) const {
    return required(key, "a number").asNumber();
}

double KyRefJsonNode::number(std::string_view key, double otherwise) const {
    const auto member = optional(key);
    return member ? member->asNumber() : otherwise;
}

int KyRefJsonNode::integer(std::string_view key, int low, int high) const {
    return required(key, "an integer").asInteger(low, high);
}

int KyRefJsonNode::integer(std::string_view key, int otherwise, int low, int high) const {
    const auto member = optional(key);
    return member ? member->asInteger(low, high) : otherwise;
}

bool KyRefJsonNode::boolean(std::string_view key, bool otherwise) const {
    const auto member = optional(key);
    return member ? member->asBool() : otherwise;
}
