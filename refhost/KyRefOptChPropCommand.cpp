#include "KyRefOptChPropCommand.h"

#include <vector>

#include "KyRefCommandContext.h"
#include "KyRefNamedItem.h"
#include "KyRefObjectSelection.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDimension.h"
#include "db/KyDbLeader.h"
#include "db/KyDbMLeader.h"
#include "db/KyDbMText.h"
#include "db/KyDbTable.h"
#include "db/KyDbText.h"

namespace {

using Ids = std::vector<KyDbObjectId>;

// A style of the drawing named by the user; null for an empty answer. A name
// the drawing lacks ends the command.
KyDbObjectId readStyle(KyRefCommandContext& context,
                       KyDbObjectId (KyDbDatabase::*container)() const, const wchar_t* what) {
    const KyString prompt = KyString::formatted(L"Enter new %ls name: ", what);
    const KyString name = context.readName(prompt);
    if (name.isEmpty()) {
        return KyDbObjectId();
    }
    const KyDbObjectId id = KyRefNamedItem::find((context.database()->*container)(), name);
    if (id.isNull()) {
        context.fail(L"Cannot find %ls \"%ls\".", what, name.kwszPtr());
    }
    return id;
}

void changeDimensionStyle(KyRefCommandContext& context, const Ids& ids) {
    const KyDbObjectId style =
        readStyle(context, &KyDbDatabase::dimStyleTableId, L"dimension style");
    if (style.isNull()) {
        return;
    }
    KyRefObjectSelection::change<KyDbDimension>(
        ids, [&](KyDbDimension& dimension) { dimension.setDimensionStyle(style); });
    KyRefObjectSelection::change<KyDbLeader>(
        ids, [&](KyDbLeader& leader) { leader.setDimensionStyle(style); });
}

void changeTextStyle(KyRefCommandContext& context, const Ids& ids) {
    const KyDbObjectId style = readStyle(context, &KyDbDatabase::textStyleTableId, L"text style");
    if (style.isNull()) {
        return;
    }
    KyRefObjectSelection::change<KyDbText>(ids, [&](KyDbText& text) { text.setTextStyle(style); });
    KyRefObjectSelection::change<KyDbMText>(ids,
                                            [&](KyDbMText& text) { text.setTextStyle(style); });
}

void changeMLeaderStyle(KyRefCommandContext& context, const Ids& ids) {
    const KyDbObjectId style =
        readStyle(context, &KyDbDatabase::mleaderStyleDictionaryId, L"multileader style");
    if (style.isNull()) {
        return;
    }
    KyRefObjectSelection::change<KyDbMLeader>(
        ids, [&](KyDbMLeader& leader) { leader.setMLeaderStyle(style); });
}

void changeTableStyle(KyRefCommandContext& context, const Ids& ids) {
    const KyDbObjectId style =
        readStyle(context, &KyDbDatabase::tableStyleDictionaryId, L"table style");
    if (style.isNull()) {
        return;
    }
    KyRefObjectSelection::change<KyDbTable>(ids,
                                            [&](KyDbTable& table) { table.setTableStyle(style); });
}

const KyRefObjectSelection::Property kProperties[] = {
    {{L"Dimstyle", L"Bemstil"}, &changeDimensionStyle},
    {{L"Textstyle", L"Textstil"}, &changeTextStyle},
    {{L"MLstyle", L"MFstil"}, &changeMLeaderStyle},
    {{L"TAblestyle", L"TAbellenstil"}, &changeTableStyle},
};

}  // namespace

void KyRefOptChPropCommand::run(KyRefCommandContext& context) {
    KyRefObjectSelection::changeProperties(context, kProperties);
}
