#include "KyRefInsertCommand.h"

#include <memory>

#include "KyRefCommandContext.h"
#include "KyRefCurrentSpace.h"
#include "KyRefGeometryInput.h"
#include "KyRefNamedItem.h"
#include "KyRefReadAccess.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"

void KyRefInsertCommand::run(KyRefCommandContext& context) {
    using Input = KyRefGeometryInput;
    const KyString name = context.readName(L"Enter block name: ");
    const KyDbObjectId blockId = KyRefNamedItem::find(context.database()->blockTableId(), name);
    if (blockId.isNull()) {
        context.fail(L"Cannot find block \"%ls\".", name.kwszPtr());
    }
    {
        KyRefReadAccess<KyDbBlockTableRecord> block(blockId);
        if (!block || block->isLayout() || block->isAnonymous()) {
            context.fail(L"The block \"%ls\" can't be inserted.", name.kwszPtr());
        }
    }
    const KyGePoint3d position = Input::readPoint(context, L"Specify insertion point: ");
    const double scale =
        Input::readNumber(context, L"Specify scale factor <1>: ", Input::Range::kNotZero, 1.0);
    const double rotation =
        Input::readNumber(context, L"Specify rotation angle <0>: ", Input::Range::kAny, 0.0);
    auto reference = std::make_unique<KyDbBlockReference>();
    reference->setBlockTableRecord(blockId);
    reference->setPosition(position);
    reference->setScaleFactors(KyGePoint3d(scale, scale, scale));
    reference->setRotation(rotation);
    KyRefCurrentSpace::append(context, std::move(reference));
}
