#include "db/KyDbSectionViewStyle.h"

#include "db/KyDbClassSupport.h"

KYDB_DEFINE_MEMBERS(KyDbSectionViewStyle, KyDbModelDocViewStyle)

KyDbSectionViewStyle::KyDbSectionViewStyle() = default;

KyDbSectionViewStyle::~KyDbSectionViewStyle() = default;
