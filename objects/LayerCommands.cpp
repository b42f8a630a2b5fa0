#include "objects/LayerCommands.h"

#include <cwchar>
#include <map>

#include "db/KyCmColor.h"
#include "db/KyDbDatabase.h"
#include "kydi/KyDiDbLayerItem.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiFunctions.h"
#include "kydi/KyDiLayerService.h"
#include "manager/host/KyDiHostAccess.h"

namespace {

struct HandlerRow {
    const wchar_t* propertyName;
    LayerCommands::Handler handler;
};

const HandlerRow kHandlerRows[] = {
    {L"IsOff", &LayerCommands::setIsOff},
    {L"IsFrozen", &LayerCommands::setIsFrozen},
    {L"IsLocked", &LayerCommands::setIsLocked},
    {L"Color", &LayerCommands::setColor},
    {nullptr, nullptr},
};

// What every handler needs before it may send: the document and its working
// database, the editor and the layer services, and the layer's name.
struct CommandStart {
    KyDbDatabase* database = nullptr;
    KyDiEditorService* editor = nullptr;
    KyDiLayerService* layers = nullptr;
    KyString name;

    explicit CommandStart(KyDiDbLayerItem* item) {
        if (KyDiHostAccess::currentDocument() == kKyDiNoDocument) {
            return;
        }
        database = KyDiHostAccess::workingDatabase();
        editor = KyDiHostAccess::editor();
        layers = KyDiHostAccess::layerService();
        if (item != nullptr) {
            name = KyDiGetItemName(item);
        }
    }
    // A command reaches the working database only: a layer of a drawing in
    // the background is left to the record's own write.
    bool ready(const KyDiDbLayerItem* item) const {
        return database != nullptr && editor != nullptr && layers != nullptr && !name.isEmpty() &&
               item->objectId().database() == database;
    }
    bool isCurrentLayer(const KyDiDbLayerItem* item) const {
        return database->clayer() == item->objectId();
    }
    bool send(const KyString& command) const {
        if (command.isEmpty()) {
            return false;
        }
        editor->sendCommand(command.kwszPtr(), false, false, false);
        return true;
    }
};

const bool* boolOf(const KyRxValue& value) {
    return valueCast<bool>(&value);
}

// "'_.-LAYER\n_OPTION\n=NAME\n\n"
bool sendOption(const CommandStart& start, const wchar_t* option) {
    return start.send(
        KyString::formatted(L"'_.-LAYER\n%ls\n=%ls\n\n", option, start.name.kwszPtr()));
}

}  // namespace

LayerCommands::Handler LayerCommands::handlerFor(const wchar_t* propertyName) {
    if (propertyName == nullptr) {
        return nullptr;
    }
    static const std::map<KyString, Handler, KyStringLess> s_handlers = [] {
        std::map<KyString, Handler, KyStringLess> handlers;
        for (const HandlerRow* row = kHandlerRows; row->propertyName != nullptr; ++row) {
            handlers.emplace(row->propertyName, row->handler);
        }
        return handlers;
    }();
    const auto found = s_handlers.find(propertyName);
    return found != s_handlers.end() ? found->second : nullptr;
}

bool LayerCommands::setIsOff(KyDiDbLayerItem* item, const KyRxValue& value) {
    const CommandStart start(item);
    const bool* off = boolOf(value);
    if (!start.ready(item) || off == nullptr) {
        return false;
    }
    // Turning the current layer off is the user's call: the host asks.
    if (*off && start.isCurrentLayer(item)) {
        if (start.layers->askTurnOnCurrentLayer() != KyDiLayerService::kLeaveLayerOff) {
            return true;
        }
        return start.send(
            KyString::formatted(L"'_.-LAYER\n_OFF\n=%ls\n_Yes\n\n", start.name.kwszPtr()));
    }
    return sendOption(start, *off ? L"_OFF" : L"_ON");
}

bool LayerCommands::setIsFrozen(KyDiDbLayerItem* item, const KyRxValue& value) {
    const CommandStart start(item);
    const bool* frozen = boolOf(value);
    if (!start.ready(item) || frozen == nullptr) {
        return false;
    }
    if (start.isCurrentLayer(item)) {
        start.layers->reportCurrentLayerCantFreeze();
        return true;
    }
    return sendOption(start, *frozen ? L"_FREEZE" : L"_THAW");
}

bool LayerCommands::setIsLocked(KyDiDbLayerItem* item, const KyRxValue& value) {
    const CommandStart start(item);
    const bool* locked = boolOf(value);
    if (!start.ready(item) || locked == nullptr) {
        return false;
    }
    return sendOption(start, *locked ? L"_LOCK" : L"_UNLOCK");
}

bool LayerCommands::setColor(KyDiDbLayerItem* item, const KyRxValue& value) {
    const CommandStart start(item);
    const KyCmColor* color = valueCast<KyCmColor>(&value);
    if (!start.ready(item) || color == nullptr) {
        return false;
    }
    const wchar_t* name = start.name.kwszPtr();
    if (color->isByACI()) {
        return start.send(KyString::formatted(L"'_.-LAYER\n_COLOR\n%d\n=%ls\n\n",
                                              static_cast<int>(color->colorIndex()), name));
    }
    if (color->hasColorName() && color->hasBookName()) {
        return start.send(KyString::formatted(L"'_.-LAYER\n_COLOR\n_COLORBOOK\n%ls\n%ls\n=%ls\n\n",
                                              color->bookName(), color->colorName(), name));
    }
    if (color->hasColorName()) {
        return start.send(
            KyString::formatted(L"'_.-LAYER\n_COLOR\n%ls\n=%ls\n\n", color->colorName(), name));
    }
    if (color->isByColor()) {
        const KyString rgb =
            KyString::formatted(L"%d,%d,%d", color->red(), color->green(), color->blue());
        return start.send(KyString::formatted(L"'_.-LAYER\n_COLOR\n_TRUECOLOR\n%ls\n=%ls\n\n",
                                              rgb.kwszPtr(), name));
    }
    return false;
}
