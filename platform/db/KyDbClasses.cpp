// The runtime classes of the drawing database, made known by name. Each
// desc() registers its class at the first call, a parent before its
// children.
#include "db/KyDbAbstractViewTableRecord.h"
#include "db/KyDbArc.h"
#include "db/KyDbAttribute.h"
#include "db/KyDbBlockReference.h"
#include "db/KyDbBlockTable.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbCircle.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbDatabaseReactor.h"
#include "db/KyDbDetailViewStyle.h"
#include "db/KyDbDictionary.h"
#include "db/KyDbDictionaryVar.h"
#include "db/KyDbDictionaryWithDefault.h"
#include "db/KyDbDimStyleTable.h"
#include "db/KyDbDimStyleTableRecord.h"
#include "db/KyDbDimension.h"
#include "db/KyDbEdgePart.h"
#include "db/KyDbEllipse.h"
#include "db/KyDbEntity.h"
#include "db/KyDbEntityPart.h"
#include "db/KyDbFacePart.h"
#include "db/KyDbHatch.h"
#include "db/KyDbLayerState.h"
#include "db/KyDbLayerTable.h"
#include "db/KyDbLayerTableRecord.h"
#include "db/KyDbLayout.h"
#include "db/KyDbLeader.h"
#include "db/KyDbLine.h"
#include "db/KyDbLinetypeTable.h"
#include "db/KyDbLinetypeTableRecord.h"
#include "db/KyDbLongTransaction.h"
#include "db/KyDbMLeader.h"
#include "db/KyDbMLeaderStyle.h"
#include "db/KyDbMText.h"
#include "db/KyDbMaterial.h"
#include "db/KyDbModelDocViewStyle.h"
#include "db/KyDbObject.h"
#include "db/KyDbObjectReactor.h"
#include "db/KyDbPlaceHolder.h"
#include "db/KyDbPlotSettings.h"
#include "db/KyDbPoint.h"
#include "db/KyDbPolyline.h"
#include "db/KyDbRasterImageDef.h"
#include "db/KyDbRegion.h"
#include "db/KyDbRenderSettings.h"
#include "db/KyDbScale.h"
#include "db/KyDbSectionViewStyle.h"
#include "db/KyDbSun.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbSymbolTableRecord.h"
#include "db/KyDbTable.h"
#include "db/KyDbTableCellSelection.h"
#include "db/KyDbTableStyle.h"
#include "db/KyDbText.h"
#include "db/KyDbTextStyleTable.h"
#include "db/KyDbTextStyleTableRecord.h"
#include "db/KyDbUCSTable.h"
#include "db/KyDbUCSTableRecord.h"
#include "db/KyDbUnknownEntity.h"
#include "db/KyDbUnknownObject.h"
#include "db/KyDbVertexPart.h"
#include "db/KyDbViewCallout.h"
#include "db/KyDbViewTable.h"
#include "db/KyDbViewTableRecord.h"
#include "db/KyDbViewport.h"
#include "db/KyDbViewportTable.h"
#include "db/KyDbViewportTableRecord.h"
#include "db/KyDbVisualStyle.h"
#include "rx/KyRxPlatformInit.h"

void kyrxRegisterDatabaseClasses() {
    using Desc = KyRxClass* (*)();
    static const Desc kClasses[] = {
        &KyDbDatabase::desc,
        &KyDbObjectReactor::desc,
        &KyDbDatabaseReactor::desc,
        &KyDbObject::desc,
        &KyDbSymbolTable::desc,
        &KyDbBlockTable::desc,
        &KyDbLayerTable::desc,
        &KyDbLinetypeTable::desc,
        &KyDbTextStyleTable::desc,
        &KyDbDimStyleTable::desc,
        &KyDbViewTable::desc,
        &KyDbViewportTable::desc,
        &KyDbUCSTable::desc,
        &KyDbSymbolTableRecord::desc,
        &KyDbBlockTableRecord::desc,
        &KyDbLayerTableRecord::desc,
        &KyDbLinetypeTableRecord::desc,
        &KyDbTextStyleTableRecord::desc,
        &KyDbDimStyleTableRecord::desc,
        &KyDbAbstractViewTableRecord::desc,
        &KyDbViewTableRecord::desc,
        &KyDbViewportTableRecord::desc,
        &KyDbUCSTableRecord::desc,
        &KyDbEntity::desc,
        &KyDbLine::desc,
        &KyDbCircle::desc,
        &KyDbArc::desc,
        &KyDbEllipse::desc,
        &KyDbPoint::desc,
        &KyDbPolyline::desc,
        &KyDbText::desc,
        &KyDbAttribute::desc,
        &KyDbMText::desc,
        &KyDbBlockReference::desc,
        &KyDbDimension::desc,
        &KyDbLeader::desc,
        &KyDbMLeader::desc,
        &KyDbViewport::desc,
        &KyDbHatch::desc,
        &KyDbRegion::desc,
        &KyDbTable::desc,
        &KyDbTableCellSelection::desc,
        &KyDbViewCallout::desc,
        &KyDbUnknownEntity::desc,
        &KyDbDictionary::desc,
        &KyDbDictionaryWithDefault::desc,
        &KyDbPlotSettings::desc,
        &KyDbLayout::desc,
        &KyDbMaterial::desc,
        &KyDbVisualStyle::desc,
        &KyDbMLeaderStyle::desc,
        &KyDbTableStyle::desc,
        &KyDbModelDocViewStyle::desc,
        &KyDbSectionViewStyle::desc,
        &KyDbDetailViewStyle::desc,
        &KyDbScale::desc,
        &KyDbPlaceHolder::desc,
        &KyDbRenderSettings::desc,
        &KyDbDictionaryVar::desc,
        &KyDbSun::desc,
        &KyDbLayerState::desc,
        &KyDbRasterImageDef::desc,
        &KyDbUnknownObject::desc,
        &KyDbLongTransaction::desc,
        &KyDbEntityPart::desc,
        &KyDbFacePart::desc,
        &KyDbEdgePart::desc,
        &KyDbVertexPart::desc,
    };
    for (Desc desc : kClasses) {
        desc();
    }
}
