// KyRefJsonNode: one value of a drawing file being read, with the way to it
// from the top (`blocks[2].entities[7].layer`). Nodes live on the reader's
// stack, each pointing at its parent, so the path costs nothing until a fault
// needs it. Every typed read checks the JSON type and throws
// KyRefDrawingError with the path and what was expected.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "KyRefJson.h"
#include "base/KyString.h"

class KyRefJsonNode {
public:
    // The top of a document.
    explicit KyRefJsonNode(const KyRefJson& value) : m_value(value) {}
    // The member `key` of `parent`, and the item `index` of `parent`.
    KyRefJsonNode(const KyRefJson& value, const KyRefJsonNode& parent, std::string_view key)
        : m_value(value), m_parent(&parent), m_key(key) {}
    KyRefJsonNode(const KyRefJson& value, const KyRefJsonNode& parent, std::size_t index)
        : m_value(value), m_parent(&parent), m_index(index), m_isItem(true) {}

    const KyRefJson& value() const { return m_value; }
    // The JSON path: members joined by ".", items as "[i]", keys that are not
    // plain words in brackets and quotes (`entries["Shaded with edges"]`).
    std::string path() const;
    [[noreturn]] void fail(const std::string& problem) const;
    // "a string", "an array" ...: the JSON type of `value`, for messages.
    static const char* describe(const KyRefJson& value);

    // Shapes. Each fails unless the value has it.
    const KyRefJsonNode& expectObject() const;
    const KyRefJsonNode& expectArray() const;
    std::size_t size() const { return m_value.size(); }
    KyRefJsonNode item(std::size_t index) const {
        return KyRefJsonNode(m_value[index], *this, index);
    }

    // Members of an object node.
    bool has(std::string_view key) const;
    // The member, or nothing when absent.
    std::optional<KyRefJsonNode> optional(std::string_view key) const;
    // The member; a missing one fails as missing, saying what it should be.
    KyRefJsonNode required(std::string_view key, const char* expected) const;

    // This value as a type.
    std::string asString() const;
    KyString asText() const;
    double asNumber() const;
    // An integer from `low` to `high`.
    int asInteger(int low, int high) const;
    bool asBool() const;

    // Members as a type: required ones fail when missing, the others take
    // `otherwise` when absent.
    KyString text(std::string_view key) const;
    KyString text(std::string_view key, const wchar_t* otherwise) const;
    double number(std::string_view key) const;
    double number(std::string_view key, double otherwise) const;
    int integer(std::string_view key, int low, int high) const;
    int integer(std::string_view key, int otherwise, int low, int high) const;
    bool boolean(std::string_view key, bool otherwise) const;

private:
    void appendPath(std::string& out) const;

    const KyRefJson& m_value;
    const KyRefJsonNode* m_parent = nullptr;
    std::string_view m_key;
    std::size_t m_index = 0;
    bool m_isItem = false;
};
