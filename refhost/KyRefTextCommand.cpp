#include "KyRefTextCommand.h"

#include <memory>

#include "KyRefCommandContext.h"
#include "KyRefCurrentSpace.h"
#include "KyRefGeometryInput.h"
#include "KyRefHost.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbText.h"

void KyRefTextCommand::run(KyRefCommandContext& context) {
    using Input = KyRefGeometryInput;
    KyRefResbufPtr style;
    KyRefResbufPtr size;
    context.host().sysVars().get(L"TEXTSTYLE", style);
    context.host().sysVars().get(L"TEXTSIZE", size);
    const double currentHeight = size != nullptr ? size->resval.rreal : 1.0;
    context.message(L"Current text style: \"%ls\"  Text height: %.4f",
                    style != nullptr ? style->resval.rstring : L"", currentHeight);

    const KyGePoint3d position = Input::readPoint(context, L"Specify start point of text: ");
    const KyString heightPrompt = KyString::formatted(L"Specify height <%.4f>: ", currentHeight);
    const double height =
        Input::readNumber(context, heightPrompt, Input::Range::kPositive, currentHeight);
    const double rotation = Input::readNumber(context, L"Specify rotation angle of text <0>: ",
                                              Input::Range::kAny, 0.0);
    const KyString text = context.readLine(L"Enter text: ");
    if (text.isEmpty()) {
        return;
    }
    auto entity = std::make_unique<KyDbText>();
    entity->setPosition(position);
    entity->setHeight(height);
    entity->setRotation(rotation);
    entity->setTextString(text);
    entity->setTextStyle(context.database()->textstyle());
    KyRefCurrentSpace::append(context, std::move(entity));
}
