#include "db/KyDbPlaceHolder.h"

#include "db/KyDbClassSupport.h"

namespace {

const KyDbPropertyRow kPlaceHolderRows[] = {
    {L"Name", kydbiReadOnly<KyString>(&kydbiGetEntryName), KyDbCategory::kGeneral, 0},
};

}  // namespace

KYDB_DEFINE_CLASS(KyDbPlaceHolder, KyDbObject, kPlaceHolderRows)

KyDbPlaceHolder::KyDbPlaceHolder() = default;

KyDbPlaceHolder::~KyDbPlaceHolder() = default;
