#include "db/KyDbPropertyTexts.h"

#include <cwchar>

namespace {

struct TextRow {
    const wchar_t* name;
    unsigned id;
};

// Local names of reflected properties, by property name. The description of
// each is the text kDescriptionOffset further on.
const TextRow kPropertyTexts[] = {
    {L"ClassName", 9400},
    {L"LocalizedName", 9401},
    {L"Name", 9402},
    {L"IsDependent", 9403},
    {L"Color", 9404},
    {L"LinetypeObjectId", 9405},
    {L"LineWeight", 9406},
    {L"Transparency", 9407},
    {L"PlotStyleName", 9408},
    {L"IsOff", 9409},
    {L"IsFrozen", 9410},
    {L"IsLocked", 9411},
    {L"IsPlottable", 9412},
    {L"IsFrozenInNewViewports", 9413},
    {L"Description", 9414},
    {L"PatternLength", 9415},
    {L"NumDashes", 9416},
    {L"FileName", 9417},
    {L"BigFontFileName", 9418},
    {L"Height", 9419},
    {L"WidthFactor", 9420},
    {L"ObliquingAngle", 9421},
    {L"TextStyleId", 9422},
    {L"Center", 9423},
    {L"Width", 9424},
    {L"Target", 9425},
    {L"Direction", 9426},
    {L"SunId", 9427},
    {L"IsPaperspaceView", 9428},
    {L"ViewCenter", 9429},
    {L"Origin", 9430},
    {L"XAxis", 9431},
    {L"YAxis", 9432},
    {L"PathName", 9433},
    {L"IsFromExternalReference", 9434},
    {L"IsFromOverlayReference", 9435},
    {L"IsLayout", 9436},
    {L"IsAnonymous", 9437},
    {L"LayerId", 9438},
    {L"LinetypeId", 9439},
    {L"LinetypeScale", 9440},
    {L"PlotStyle", 9441},
    {L"MaterialId", 9442},
    {L"Visible", 9443},
    {L"StartPoint", 9444},
    {L"EndPoint", 9445},
    {L"Length", 9446},
    {L"Radius", 9447},
    {L"Area", 9448},
    {L"StartAngle", 9449},
    {L"EndAngle", 9450},
    {L"MajorAxis", 9451},
    {L"RadiusRatio", 9452},
    {L"Position", 9453},
    {L"Points", 9454},
    {L"Closed", 9455},
    {L"GlobalWidth", 9456},
    {L"TextString", 9457},
    {L"Rotation", 9458},
    {L"Tag", 9459},
    {L"BlockTableRecordId", 9460},
    {L"ScaleFactors", 9461},
    {L"IsDynamicBlock", 9462},
    {L"DimensionStyleId", 9463},
    {L"Measurement", 9464},
    {L"DimensionText", 9465},
    {L"MLeaderStyleId", 9466},
    {L"ViewHeight", 9467},
    {L"IsOn", 9468},
    {L"VisualStyleId", 9469},
    {L"IsNonRectClipOn", 9470},
    {L"Number", 9471},
    {L"TabOrder", 9472},
    {L"Type", 9473},
    {L"IsInternalUseOnly", 9474},
    {L"CellStyles", 9475},
    {L"PaperUnits", 9476},
    {L"DrawingUnits", 9477},
    {L"Scale", 9478},
    {L"OutputSize", 9479},
    {L"Value", 9480},
    {L"Intensity", 9481},
    {L"ShadowType", 9482},
    {L"SourceFileName", 9483},
    {L"BlockId", 9484},
    {L"LayoutId", 9485},
    {L"DefaultId", 9486},
    {L"Attributes", 9487},
    {L"FrozenLayers", 9488},
    {L"DimBlockId", 9489},
    {L"Items", 9490},
    {L"DecimalPlaces", 9491},
    {L"Mask", 9492},
    {L"LensLength", 9493},
    {L"PageSetupName", 9494},
    {L"PlotStyleTable", 9495},
    {L"RasterResolution", 9496},
    {L"PatternName", 9497},
    {L"NumLoops", 9498},
    // The second block of names, once the first was full.
    {L"CellStyle", 9700},
    {L"TableStyleId", 9701},
    {L"Rows", 9702},
    {L"Columns", 9703},
    {L"CalloutKind", 9704},
    {L"ViewStyleId", 9705},
    {L"Label", 9706},
    {L"HasXrefOverrides", 9707},
};

// Local names of the database classes, by class name.
const TextRow kClassTexts[] = {
    {L"KyDbDatabase", 9600},
    {L"KyDbObject", 9601},
    {L"KyDbEntity", 9602},
    {L"KyDbLine", 9603},
    {L"KyDbCircle", 9604},
    {L"KyDbArc", 9605},
    {L"KyDbEllipse", 9606},
    {L"KyDbPoint", 9607},
    {L"KyDbPolyline", 9608},
    {L"KyDbText", 9609},
    {L"KyDbMText", 9610},
    {L"KyDbAttribute", 9611},
    {L"KyDbBlockReference", 9612},
    {L"KyDbDimension", 9613},
    {L"KyDbLeader", 9614},
    {L"KyDbMLeader", 9615},
    {L"KyDbViewport", 9616},
    {L"KyDbUnknownEntity", 9617},
    {L"KyDbSymbolTable", 9618},
    {L"KyDbBlockTable", 9619},
    {L"KyDbLayerTable", 9620},
    {L"KyDbLinetypeTable", 9621},
    {L"KyDbTextStyleTable", 9622},
    {L"KyDbDimStyleTable", 9623},
    {L"KyDbViewTable", 9624},
    {L"KyDbViewportTable", 9625},
    {L"KyDbUCSTable", 9626},
    {L"KyDbSymbolTableRecord", 9627},
    {L"KyDbBlockTableRecord", 9628},
    {L"KyDbLayerTableRecord", 9629},
    {L"KyDbLinetypeTableRecord", 9630},
    {L"KyDbTextStyleTableRecord", 9631},
    {L"KyDbDimStyleTableRecord", 9632},
    {L"KyDbAbstractViewTableRecord", 9633},
    {L"KyDbViewTableRecord", 9634},
    {L"KyDbViewportTableRecord", 9635},
    {L"KyDbUCSTableRecord", 9636},
    {L"KyDbDictionary", 9637},
    {L"KyDbDictionaryWithDefault", 9638},
    {L"KyDbPlotSettings", 9639},
    {L"KyDbLayout", 9640},
    {L"KyDbMaterial", 9641},
    {L"KyDbVisualStyle", 9642},
    {L"KyDbMLeaderStyle", 9643},
    {L"KyDbTableStyle", 9644},
    {L"KyDbModelDocViewStyle", 9645},
    {L"KyDbSectionViewStyle", 9646},
    {L"KyDbDetailViewStyle", 9647},
    {L"KyDbScale", 9648},
    {L"KyDbPlaceHolder", 9649},
    {L"KyDbRenderSettings", 9650},
    {L"KyDbDictionaryVar", 9651},
    {L"KyDbSun", 9652},
    {L"KyDbRasterImageDef", 9653},
    {L"KyDbUnknownObject", 9654},
    {L"KyDbLongTransaction", 9655},
    {L"KyDbLayerState", 9656},
    {L"KyDbHatch", 9657},
    {L"KyDbRegion", 9658},
    {L"KyDbTable", 9659},
    {L"KyDbTableCellSelection", 9660},
    {L"KyDbViewCallout", 9661},
    // The parts of entities that a selection names (KyDbEntityPart).
    {L"KyDbFacePart", 9690},
    {L"KyDbEdgePart", 9691},
    {L"KyDbVertexPart", 9692},
};

template <std::size_t N>
unsigned find(const TextRow (&rows)[N], const wchar_t* name) {
    if (name == nullptr) {
        return 0;
    }
    for (const TextRow& row : rows) {
        if (std::wcscmp(row.name, name) == 0) {
            return row.id;
        }
    }
    return 0;
}

}  // namespace

unsigned KyDbPropertyTexts::nameId(const wchar_t* propertyName) {
    return find(kPropertyTexts, propertyName);
}

unsigned KyDbPropertyTexts::descriptionId(const wchar_t* propertyName) {
    const unsigned id = nameId(propertyName);
    return id != 0 ? id + kDescriptionOffset : 0;
}

unsigned KyDbPropertyTexts::classNameId(const wchar_t* className) {
    return find(kClassTexts, className);
}
