#include "KyRefPointCommand.h"

#include <memory>

#include "KyRefCurrentSpace.h"
#include "KyRefGeometryInput.h"
#include "db/KyDbPoint.h"

void KyRefPointCommand::run(KyRefCommandContext& context) {
    const KyGePoint3d position = KyRefGeometryInput::readPoint(context, L"Specify a point: ");
    KyRefCurrentSpace::append(context, std::make_unique<KyDbPoint>(position));
}
