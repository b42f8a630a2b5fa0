#include "KyAppDumpText.h"

#include <string>

#include "KyAppValue.h"
#include "io/KyRefHeaderRows.h"

namespace {

// How a member of a drawing file is shown.
enum class Form { kPlain, kColor, kTransparency, kHandle };

std::string valueText(const KyRefJson& value);

std::string textOf(const std::string& text) {
    return KyAppValue::text(text).format();
}

std::string colorText(const KyRefJson& value) {
    if (value.is_number_integer()) {
        const int index = value.get<int>();
        return index == 0     ? KyAppValue::byBlock().format()
               : index == 256 ? KyAppValue::byLayer().format()
                              : KyAppValue::colorIndex(index).format();
    }
    if (!value.is_object() || !value.contains("rgb")) {
        return valueText(value);
    }
    if (value.contains("name")) {
        return KyAppValue::bookColor(value.value("book", std::string()),
                                     value["name"].get<std::string>())
            .format();
    }
    const KyRefJson& rgb = value["rgb"];
    return KyAppValue::trueColor(rgb[0].get<int>(), rgb[1].get<int>(), rgb[2].get<int>()).format();
}

std::string transparencyText(const KyRefJson& value) {
    if (value.is_number_integer()) {
        return KyAppValue::alpha(value.get<int>()).format();
    }
    if (value == "ByLayer") {
        return KyAppValue::byLayer().format();
    }
    if (value == "ByBlock") {
        return KyAppValue::byBlock().format();
    }
    return valueText(value);
}

std::string handleText(const KyRefJson& value) {
    return value.is_string() ? "#" + value.get<std::string>() : valueText(value);
}

Form formOf(const std::string& member, const std::string& ownerType) {
    if (member == "color") {
        return Form::kColor;
    }
    if (member == "transparency") {
        return Form::kTransparency;
    }
    if (member == "viewport" || member == "sun" || member == "layout" || member == "definition" ||
        (member == "block" && ownerType == "LAYOUT")) {
        return Form::kHandle;
    }
    return Form::kPlain;
}

std::string memberText(const KyRefJson& value, Form form) {
    switch (form) {
        case Form::kColor:
            return colorText(value);
        case Form::kTransparency:
            return transparencyText(value);
        case Form::kHandle:
            return handleText(value);
        case Form::kPlain:
            break;
    }
    return valueText(value);
}

// The members of an object as "name=value" joined by blanks, but for those
// named in `skipped`.
std::string membersText(const KyRefJson& object, std::initializer_list<const char*> skipped) {
    std::string text;
    const std::string type = object.value("type", std::string());
    for (auto it = object.begin(); it != object.end(); ++it) {
        bool skip = false;
        for (const char* name : skipped) {
            skip = skip || it.key() == name;
        }
        if (skip) {
            continue;
        }
        text +=
            (text.empty() ? "" : " ") + it.key() + "=" + memberText(*it, formOf(it.key(), type));
    }
    return text;
}

std::string valueText(const KyRefJson& value) {
    if (value.is_string()) {
        return textOf(value.get<std::string>());
    }
    if (value.is_boolean()) {
        return value.get<bool>() ? "true" : "false";
    }
    if (value.is_number()) {
        return KyAppValue::formatNumber(value.get<double>());
    }
    if (value.is_array()) {
        std::string text = "[";
        for (std::size_t i = 0; i < value.size(); ++i) {
            text += (i > 0 ? ", " : "") + valueText(value[i]);
        }
        return text + "]";
    }
    if (value.is_object()) {
        return "{" + membersText(value, {}) + "}";
    }
    return "none";
}

void line(std::ostream& out, int depth, const std::string& text) {
    out << std::string(static_cast<std::size_t>(depth) * 2, ' ') << text << '\n';
}

void writeDocument(const KyRefJson& document, std::ostream& out) {
    if (!document.is_object()) {
        line(out, 0, "document none");
        return;
    }
    line(out, 0,
         "document " + std::to_string(document["number"].get<int>()) + " " +
             textOf(document["name"].get<std::string>()));
    line(out, 1, "path " + textOf(document["path"].get<std::string>()));
    line(out, 1, std::string("modified ") + (document["modified"].get<bool>() ? "true" : "false"));
}

void writeSysVars(const KyRefJson& sysVars, std::ostream& out) {
    line(out, 0, "sysvars " + std::to_string(sysVars.size()));
    for (const KyRefJson& sysVar : sysVars) {
        const double minimum = sysVar["minimum"].get<double>();
        const double maximum = sysVar["maximum"].get<double>();
        const std::string range = maximum < minimum ? "none"
                                                    : KyAppValue::formatNumber(minimum) + ".." +
                                                          KyAppValue::formatNumber(maximum);
        line(out, 1,
             sysVar["name"].get<std::string>() + " " + valueText(sysVar["value"]) + " range=" +
                 range + " active=" + (sysVar["active"].get<bool>() ? "true" : "false"));
    }
}

void writeTables(const KyRefJson& tables, std::ostream& out) {
    for (auto table = tables.begin(); table != tables.end(); ++table) {
        line(out, 0, "table " + table.key() + " " + std::to_string(table->size()));
        for (const KyRefJson& record : *table) {
            std::string text = textOf(record["name"].get<std::string>()) + " #" +
                               record["handle"].get<std::string>();
            const std::string members = membersText(record, {"name", "handle"});
            line(out, 1, members.empty() ? text : text + " " + members);
        }
    }
}

void writeObject(const std::string& key, const KyRefJson& object, int depth, std::ostream& out) {
    std::string text = key + " #" + object.value("handle", std::string("?")) + " " +
                       object.value("type", std::string("?"));
    const std::string members = membersText(object, {"type", "handle", "entries"});
    line(out, depth, members.empty() ? text : text + " " + members);
    if (!object.contains("entries") || !object["entries"].is_object()) {
        return;
    }
    const KyRefJson& entries = object["entries"];
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        writeObject(textOf(entry.key()), *entry, depth + 1, out);
    }
}

void writeHeader(const KyRefJson& header, std::ostream& out) {
    line(out, 0, "header " + std::to_string(header.size()));
    for (auto it = header.begin(); it != header.end(); ++it) {
        const KyRefHeaderRow* row = KyRefHeaderRows::find(it.key());
        Form form = Form::kPlain;
        if (row != nullptr && row->form == KyRefHeaderRow::Form::kColor) {
            form = Form::kColor;
        } else if (row != nullptr && row->form == KyRefHeaderRow::Form::kTransparency) {
            form = Form::kTransparency;
        }
        line(out, 1, it.key() + " " + memberText(*it, form));
    }
}

void writeCollections(const KyRefJson& collections, std::ostream& out) {
    line(out, 0, "collections " + std::to_string(collections.size()));
    for (const KyRefJson& collection : collections) {
        const std::string current =
            collection["current"].is_null() ? "none" : textOf(collection["current"]);
        line(out, 1,
             collection["name"].get<std::string>() + " " +
                 std::to_string(collection["items"].size()) + " items, current " + current +
                 (collection["active"].get<bool>() ? "" : ", inactive"));
        for (const KyRefJson& item : collection["items"]) {
            const std::string where = item["handle"].is_null()
                                          ? item["value"].get<std::string>()
                                          : "#" + item["handle"].get<std::string>();
            std::string text = textOf(item["name"].get<std::string>()) + " " + where;
            if (item.contains("properties")) {
                for (auto it = item["properties"].begin(); it != item["properties"].end(); ++it) {
                    text += " " + it.key() + "=" + it->get<std::string>();
                }
            }
            line(out, 2, text);
        }
    }
}

void writeContexts(const KyRefJson& contexts, std::ostream& out) {
    line(out, 0, "contexts " + std::to_string(contexts.size()));
    for (const KyRefJson& context : contexts) {
        line(out, 1,
             context["name"].get<std::string>() + " priority " +
                 std::to_string(context["priority"].get<int>()) +
                 (context["active"].get<bool>() ? " active" : " inactive"));
        const KyRefJson& properties = context["properties"];
        for (auto it = properties.begin(); it != properties.end(); ++it) {
            line(out, 2, it.key() + " " + it->get<std::string>());
        }
    }
}

}  // namespace

void KyAppDumpText::write(const KyRefJson& dump, std::ostream& out) {
    writeDocument(dump["document"], out);
    writeCollections(dump["collections"], out);
    writeContexts(dump["contexts"], out);
    writeSysVars(dump["sysvars"], out);
    writeTables(dump["tables"], out);
    if (dump["objects"].is_object()) {
        writeObject("objects", dump["objects"], 0, out);
    }
    writeHeader(dump["header"], out);
}
