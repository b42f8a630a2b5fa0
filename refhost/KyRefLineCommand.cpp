#include "KyRefLineCommand.h"

#include <memory>

#include "KyRefCurrentSpace.h"
#include "KyRefGeometryInput.h"
#include "db/KyDbLine.h"

void KyRefLineCommand::run(KyRefCommandContext& context) {
    std::optional<KyGePoint3d> from =
        KyRefGeometryInput::readPointOrEnd(context, L"Specify first point: ");
    while (from.has_value()) {
        const std::optional<KyGePoint3d> to =
            KyRefGeometryInput::readPointOrEnd(context, L"Specify next point: ");
        if (to.has_value()) {
            KyRefCurrentSpace::append(context, std::make_unique<KyDbLine>(*from, *to));
        }
        from = to;
    }
}
