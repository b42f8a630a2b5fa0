#include "KyRefCircleCommand.h"

#include <memory>

#include "KyRefCurrentSpace.h"
#include "KyRefGeometryInput.h"
#include "db/KyDbCircle.h"

void KyRefCircleCommand::run(KyRefCommandContext& context) {
    using Input = KyRefGeometryInput;
    const KyGePoint3d center = Input::readPoint(context, L"Specify center point for circle: ");
    const double radius =
        Input::readNumber(context, L"Specify radius of circle: ", Input::Range::kPositive);
    KyRefCurrentSpace::append(context, std::make_unique<KyDbCircle>(center, radius));
}
