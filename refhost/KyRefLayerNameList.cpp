#include "KyRefLayerNameList.h"

#include <algorithm>

#include "KyRefCommandContext.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbSymbolTable.h"

namespace {

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

// The layers of names that are no patterns, in table order, each once; a
// name that finds none fails the command as the match would.
std::vector<KyDbObjectId> lookUp(KyRefCommandContext& context,
                                 const std::vector<KyRefNamePattern>& names) {
    std::vector<KyDbObjectId> ids;
    KyRefReadAccess<KyDbSymbolTable> table(context.database()->layerTableId());
    if (!table) {
        return ids;
    }
    for (const KyRefNamePattern& name : names) {
        KyDbObjectId id;
        if (table->getAt(name.name().kwszPtr(), id) != Kyro::eOk) {
            context.fail(L"Cannot find layer \"%ls\".", name.typedText().kwszPtr());
            continue;
        }
        if (std::find(ids.begin(), ids.end(), id) == ids.end()) {
            ids.push_back(id);
        }
    }
    if (ids.size() > 1) {
        KyArray<KyDbObjectId> order;
        table->getRecordIds(order);
        std::vector<KyDbObjectId> sorted;
        for (const KyDbObjectId& id : order) {
            if (std::find(ids.begin(), ids.end(), id) != ids.end()) {
                sorted.push_back(id);
            }
        }
        ids = std::move(sorted);
    }
    return ids;
}

}  // namespace

std::vector<KyRefNamePattern> KyRefLayerNameList::read(const KyString& answer) {
    KyString text = KyString(answer).trim();
    const bool literal = text.kwszPtr()[0] == L'=';
    if (literal) {
        text = text.mid(1);
    }
    std::vector<KyRefNamePattern> names;
    const wchar_t* chars = text.kwszPtr();
    int start = 0;
    for (int at = 0;; ++at) {
        if (!literal && chars[at] == L'`' && chars[at + 1] != L'\0') {
            ++at;
            continue;
        }
        if (chars[at] != L',' && chars[at] != L'\0') {
            continue;
        }
        KyString name = text.mid(start, at - start).trim();
        if (name.length() >= 2 && name.kwszPtr()[0] == L'"' &&
            name.kwszPtr()[name.length() - 1] == L'"') {
            name = name.mid(1, name.length() - 2);
        }
        if (!name.isEmpty()) {
            names.push_back(literal ? KyRefNamePattern::literal(name)
                                    : KyRefNamePattern::typed(name));
        }
        if (chars[at] == L'\0') {
            return names;
        }
        start = at + 1;
    }
}

std::vector<KyDbObjectId> KyRefLayerNameList::resolve(KyRefCommandContext& context,
                                                      const KyString& answer) {
    const std::vector<KyRefNamePattern> names = read(answer);
    // Names without wild cards are looked up, not matched against every
    // layer: a command on one layer of many costs the same as on one of few.
    if (std::none_of(names.begin(), names.end(),
                     [](const KyRefNamePattern& name) { return name.isWildCard(); })) {
        return lookUp(context, names);
    }
    std::vector<Layer> layers = layersOf(context.database());
    for (const KyRefNamePattern& name : names) {
        bool found = false;
        for (Layer& layer : layers) {
            if (name.matches(layer.name)) {
                layer.named = true;
                found = true;
            }
        }
        if (!found) {
            context.fail(
                name.isWildCard() ? L"No layer matches \"%ls\"." : L"Cannot find layer \"%ls\".",
                name.typedText().kwszPtr());
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
