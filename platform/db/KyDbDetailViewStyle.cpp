#include "db/KyDbDetailViewStyle.h"

#include "db/KyDbClassSupport.h"

KYDB_DEFINE_MEMBERS(KyDbDetailViewStyle, KyDbModelDocViewStyle)

KyDbDetailViewStyle::KyDbDetailViewStyle() = default;

KyDbDetailViewStyle::~KyDbDetailViewStyle() = default;
