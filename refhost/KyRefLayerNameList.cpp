#include "KyRefLayerNameList.h"

#include <cwctype>

#include "KyRefCommandContext.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbSymbolTable.h"

namespace {

bool hasWildCard(const KyString& name) {
    return name.findOneOf(L"*?") >= 0;
}

wint_t folded(wchar_t c) {
    return std::towlower(static_cast<wint_t>(c));
}

struct Layer {
    KyDbObjectId id;
    KyString name;
    bool named = false;
};

// The layers of the drawing that are not erased, in table order.
std::vector<Layer> layersOf(KyDbDatabase* database) {
    std::vector<Layer> layers;
    KyRefReadAccess<KyDbSymbolTable> table(database->layerTableId());
    if (!table) {
        return layers;
    }
    KyArray<KyDbObjectId> ids;
    table->getRecordIds(ids);
    for (const KyDbObjectId& id : ids) {
        KyRefReadAccess<KyDbLayerTableRecord> layer(id);
        if (layer) {
            layers.push_back(Layer{id, layer->name()});
        }
    }
    return layers;
}

}  // namespace

std::vector<KyString> KyRefLayerNameList::split(const KyString& answer, bool& literal) {
    KyString text = KyString(answer).trim();
    literal = text.kwszPtr()[0] == L'=';
    if (literal) {
        text = text.mid(1);
    }
    std::vector<KyString> names;
    int start = 0;
    while (start <= text.length()) {
        int comma = text.find(L',', start);
        if (comma < 0) {
            comma = text.length();
        }
        KyString name = text.mid(start, comma - start).trim();
        if (name.length() >= 2 && name.kwszPtr()[0] == L'"' &&
            name.kwszPtr()[name.length() - 1] == L'"') {
            name = name.mid(1, name.length() - 2);
        }
        if (!name.isEmpty()) {
            names.push_back(name);
        }
        start = comma + 1;
    }
    return names;
}

bool KyRefLayerNameList::matches(const wchar_t* pattern, const wchar_t* name) {
    // Matches with one step back to the last "*": linear for the usual
    // patterns, and never recursive.
    const wchar_t* star = nullptr;
    const wchar_t* resume = nullptr;
    while (*name != L'\0') {
        if (*pattern == L'*') {
            star = pattern++;
            resume = name;
        } else if (*pattern != L'\0' && (*pattern == L'?' || folded(*pattern) == folded(*name))) {
            ++pattern;
            ++name;
        } else if (star != nullptr) {
            pattern = star + 1;
            name = ++resume;
        } else {
            return false;
        }
    }
    while (*pattern == L'*') {
        ++pattern;
    }
    return *pattern == L'\0';
}

std::vector<KyDbObjectId> KyRefLayerNameList::resolve(KyRefCommandContext& context,
                                                      const KyString& answer) {
    bool literal = false;
    const std::vector<KyString> names = split(answer, literal);
    std::vector<Layer> layers = layersOf(context.database());
    for (const KyString& name : names) {
        const bool pattern = !literal && hasWildCard(name);
        bool found = false;
        for (Layer& layer : layers) {
            const bool hit =
                pattern ? matches(name, layer.name) : layer.name.compareNoCase(name) == 0;
            if (hit) {
                layer.named = true;
                found = true;
            }
        }
        if (!found) {
            if (pattern) {
                context.fail(L"No layer matches \"%ls\".", name.kwszPtr());
            }
            context.fail(L"Cannot find layer \"%ls\".", name.kwszPtr());
        }
    }
    std::vector<KyDbObjectId> ids;
    for (const Layer& layer : layers) {
        if (layer.named) {
            ids.push_back(layer.id);
        }
    }
    return ids;
}
