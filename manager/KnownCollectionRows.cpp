#include "manager/KnownCollectionRows.h"

#include "collections/KyDiDataSelectedItemCollectionImp.h"
#include "collections/KyDiImpColorCollection.h"
#include "collections/KyDiImpDataLayerStateCollection.h"
#include "collections/KyDiImpDataLayoutItemCollection.h"
#include "collections/KyDiImpDataMaterialItemCollection.h"
#include "collections/KyDiImpDataPlotSettingsItemCollection.h"
#include "collections/KyDiImpDataPlotStyleItemCollection.h"
#include "collections/KyDiImpDataVisualStyleItemCollection.h"
#include "collections/KyDiImpDictionaryItemCollection.h"
#include "collections/KyDiImpLayerCollection.h"
#include "collections/KyDiImpLineTypeCollection.h"
#include "collections/KyDiImpRenderPresetCollection.h"
#include "collections/KyDiImpSymbolTableItemCollection.h"
#include "collections/KyDiImpUCSCollection.h"
#include "collections/KyDiImpViewCollection.h"
#include "collections/KyDiImpViewportCollection.h"
#include "collections/KyDiPlotStyleTableCollectionImp.h"
#include "currency/ColorCurrencyTracker.h"
#include "currency/DataItemCurrencyTracker.h"
#include "currency/LayerCurrencyTracker.h"
#include "currency/LayerFilterCurrencyTracker.h"
#include "currency/LayerStateCurrencyTracker.h"
#include "currency/LayoutCurrencyTracker.h"
#include "currency/LayoutNameCurrencyTracker.h"
#include "currency/LayoutPageSetupCurrencyTracker.h"
#include "currency/LayoutRasterDPICurrencyTracker.h"
#include "currency/LineWeightCurrencyTracker.h"
#include "currency/PlotAttachmentSpaceCurrencyTracker.h"
#include "currency/PlotStyleCurrencyTracker.h"
#include "currency/PlotStyleTableCurrencyTracker.h"
#include "currency/PlotStyleTableTypeCurrencyTracker.h"
#include "currency/RenderPresetCurrencyTracker.h"
#include "currency/ScaleListCurrencyTracker.h"
#include "currency/ShadowDisplayCurrencyTracker.h"
#include "currency/SysvarCurrencyTracker.h"
#include "currency/TransparencyCurrencyTracker.h"
#include "currency/UCSCurrencyTracker.h"
#include "currency/ViewCurrencyTracker.h"
#include "currency/VisualStyleCurrencyTracker.h"
#include "db/KyDbDatabase.h"

namespace {

// A factory of a tracker class that takes the whole row.
template <typename Tracker>
KyDiCurrencyTracker* newTracker(const wchar_t* name, const wchar_t* sysVar,
                                const wchar_t* commandFormat, KyDbIdGetter getCurrent,
                                KyDbIdSetter setCurrent) {
    return new Tracker(name, sysVar, commandFormat, getCurrent, setCurrent);
}

KyDiCurrencyTracker* newDataItemTracker(const wchar_t* name, const wchar_t* sysVar,
                                        const wchar_t* commandFormat, KyDbIdGetter getCurrent,
                                        KyDbIdSetter setCurrent) {
    return newTracker<DataItemCurrencyTracker>(name, sysVar, commandFormat, getCurrent, setCurrent);
}

// The UCS tracker listens to the variable of the named views, whatever its
// row says, and sends commands of its own.
KyDiCurrencyTracker* newUcsTracker(const wchar_t* name, const wchar_t* /*sysVar*/,
                                   const wchar_t* /*commandFormat*/, KyDbIdGetter getCurrent,
                                   KyDbIdSetter setCurrent) {
    return new UCSCurrencyTracker(name, L"NAMEDVIEWS", L"", getCurrent, setCurrent);
}

// A factory of a tracker class that reads no record id from the database.
template <typename Tracker>
KyDiCurrencyTracker* newValueTracker(const wchar_t* name, const wchar_t* sysVar,
                                     const wchar_t* commandFormat, KyDbIdGetter /*getCurrent*/,
                                     KyDbIdSetter /*setCurrent*/) {
    return new Tracker(name, sysVar, commandFormat);
}

// The named views of the space the user is in, or the model views only.
template <bool modelViewsOnly>
KyDiImpCollection* newViewCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                     KyDbIdGetter getTableId) {
    return new KyDiImpViewCollection(name, tracker, getTableId, modelViewsOnly);
}

// A factory of a collection class that takes the name, the tracker and the
// table's accessor.
template <typename Collection>
KyDiImpCollection* newTableCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                      KyDbIdGetter getTableId) {
    return new Collection(name, tracker, getTableId);
}

// A factory of a collection class that takes the name and the tracker.
template <typename Collection>
KyDiImpCollection* newCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                 KyDbIdGetter /*getTableId*/) {
    return new Collection(name, tracker);
}

// The colour list outlives the documents.
KyDiImpCollection* newColorCollection(const wchar_t* name, KyDiCurrencyTracker* tracker,
                                      KyDbIdGetter /*getTableId*/) {
    auto* colors = new KyDiImpColorCollection(name, tracker);
    colors->setTraits(KyDiImpCollectionBase::kKeepItemsWhenUnbound);
    return colors;
}

using Db = KyDbDatabase;

// The thirty rows, as each collection is known. A row without a tracker or a
// collection class is served once its class exists.
const KnownCollectionRow kRows[] = {
    {L"DIMSTYLE", &newDataItemTracker, L"DIMSTYLE", &Db::dimstyle, &Db::setDimstyle,
     &Db::dimStyleTableId, &newTableCollection<KyDiImpSymbolTableItemCollection>,
     L"_-dimstyle\n_Restore\n%ls\n", L"/DimStyleTableId/Items"},
    {L"LAYER", &newTracker<LayerCurrencyTracker>, L"CLAYER", &Db::clayer, &Db::setClayer,
     &Db::layerTableId, &newTableCollection<KyDiImpLayerCollection>, L"'_clayer\n%ls\n",
     L"/LayerTableId/Items"},
    {L"TEXTSTYLE", &newDataItemTracker, L"TEXTSTYLE", &Db::textstyle, &Db::setTextstyle,
     &Db::textStyleTableId, &newTableCollection<KyDiImpSymbolTableItemCollection>,
     L"'_textstyle\n%ls\n", L"/TextStyleTableId/Items"},
    {L"LINETYPE", &newDataItemTracker, L"CELTYPE", &Db::celtype, &Db::setCeltype,
     &Db::linetypeTableId, &newTableCollection<KyDiImpLineTypeCollection>, L"'_celtype\n%ls\n",
     L"/LinetypeTableId/Items"},
    {L"KYRO_TABLESTYLE", &newDataItemTracker, L"CTABLESTYLE", &Db::tablestyle, &Db::setTablestyle,
     nullptr, &newCollection<KyDiImpDictionaryItemCollection>, L"'_ctablestyle\n%ls\n",
     L"/TableStyleDictionaryId/Items"},
    {L"KYRO_MLEADERSTYLE", &newDataItemTracker, L"CMLEADERSTYLE", &Db::mleaderstyle,
     &Db::setMLeaderstyle, nullptr, &newCollection<KyDiImpDictionaryItemCollection>,
     L"'_cmleaderstyle\n%ls\n", L"/MLeaderStyleDictionaryId/Items"},
    {L"KYRO_SECTIONVIEWSTYLE", &newDataItemTracker, L"CVIEWSECTIONSTYLE", &Db::sectionViewStyle,
     &Db::setSectionViewStyle, nullptr, &newCollection<KyDiImpDictionaryItemCollection>,
     L"'_cviewsectionstyle\n%ls\n", L"/SectionViewStyleDictionaryId/Items"},
    {L"KYRO_DETAILVIEWSTYLE", &newDataItemTracker, L"CVIEWDETAILSTYLE", &Db::detailViewStyle,
     &Db::setDetailViewStyle, nullptr, &newCollection<KyDiImpDictionaryItemCollection>,
     L"'_cviewdetailstyle\n%ls\n", L"/DetailViewStyleDictionaryId/Items"},
    {L"KYRO_MATERIAL", &newDataItemTracker, L"CMATERIAL", &Db::cmaterial, &Db::setCmaterial,
     &Db::materialDictionaryId, &newCollection<KyDiImpDataMaterialItemCollection>, nullptr,
     L"/MaterialDictionaryId/Items"},
    {L"KYRO_LAYOUT", &newValueTracker<LayoutCurrencyTracker>, L"CTAB", nullptr, nullptr,
     &Db::layoutDictionaryId, &newCollection<KyDiImpDataLayoutItemCollection>, nullptr,
     L"LayoutDictionaryId/Items"},
    {L"KYRO_PLOTSETTINGS", nullptr, nullptr, nullptr, nullptr, &Db::plotSettingsDictionaryId,
     &newCollection<KyDiImpDataPlotSettingsItemCollection>, nullptr,
     L"plotSettingsDictionaryId/Items"},
    {L"KYRO_VISUALSTYLE", &newTracker<VisualStyleCurrencyTracker>, nullptr, nullptr, nullptr,
     nullptr, &newCollection<KyDiImpDataVisualStyleItemCollection>, nullptr,
     L"/VisualStyleDictionaryId/Items"},
    {L"KYRO_LAYERSTATES", &newTracker<LayerStateCurrencyTracker>, nullptr, nullptr, nullptr,
     nullptr, &newCollection<KyDiImpDataLayerStateCollection>, nullptr, nullptr},
    {L"NAMEDVIEWS", &newTracker<ViewCurrencyTracker>, nullptr, nullptr, nullptr, &Db::viewTableId,
     &newViewCollection<false>, nullptr, nullptr},
    {L"KYRO_PLOTSTYLENAME", &newValueTracker<PlotStyleCurrencyTracker>, L"CPLOTSTYLE", nullptr,
     nullptr, nullptr, &newCollection<KyDiImpDataPlotStyleItemCollection>, nullptr,
     L"/PlotStyleNameDictionaryId/Items"},
    {L"KYDI_DATAITEM_SELECTED_ITEMS", nullptr, nullptr, nullptr, nullptr, nullptr,
     &newCollection<KyDiDataSelectedItemCollectionImp>, nullptr, nullptr},
    {L"TABLE_CELLSTYLES", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
     L"/TableCellStyleString/Items"},
    {L"RECENTBLOCK", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
     L"/RecentBlock/Items"},
    {L"COUNTING", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
     L"/Counting/Items"},
    {L"RENDER_PRESETS", &newTracker<RenderPresetCurrencyTracker>, nullptr, nullptr, nullptr,
     nullptr, &newCollection<KyDiImpRenderPresetCollection>, nullptr,
     L"/RenderSettingsDictionary/Items"},
    {L"UCS_PLANES", &newUcsTracker, nullptr, nullptr, nullptr, &Db::UCSTableId,
     &newTableCollection<KyDiImpUCSCollection>, nullptr, nullptr},
    {L"COLOR", &newValueTracker<ColorCurrencyTracker>, L"CECOLOR", nullptr, nullptr, nullptr,
     &newColorCollection, nullptr, nullptr},
    {L"LAYERFILTERS", &newValueTracker<LayerFilterCurrencyTracker>, nullptr, nullptr, nullptr,
     nullptr, nullptr, L"'_.-LAYER\n_Filter\n_Set\n\"%ls\"\n\n", nullptr},
    {L"LAYERFILTER_TREE", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
    {L"SCALELIST", &newValueTracker<ScaleListCurrencyTracker>, L"CANNOSCALE", nullptr, nullptr,
     nullptr, nullptr, nullptr, L"/ScaleListDictionaryId/Items"},
    {L"BLOCK", nullptr, nullptr, nullptr, nullptr, &Db::blockTableId, nullptr, nullptr,
     L"/BlockTableId/Items"},
    {L"PLOTSTYLETABLE", &newValueTracker<PlotStyleTableCurrencyTracker>, nullptr, nullptr, nullptr,
     nullptr, &newCollection<KyDiPlotStyleTableCollectionImp>, nullptr, L"/PlotStyleTable/Items"},
    {L"VIEWPORT", nullptr, nullptr, nullptr, nullptr, &Db::viewportTableId,
     &newTableCollection<KyDiImpViewportCollection>, nullptr, L"/ViewportTableId/Items"},
    {L"NAMEDMODELVIEWS", &newTracker<ViewCurrencyTracker>, nullptr, nullptr, nullptr,
     &Db::viewTableId, &newViewCollection<true>, nullptr, nullptr},
    {L"IMAGE", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr},
};

static_assert(std::size(kRows) == 30, "the thirty known collections");

const KnownEnumRow kEnumRows[] = {
    {L"LINEWEIGHT", &newValueTracker<LineWeightCurrencyTracker>, L"CELWEIGHT",
     L"'_celweight\n%d\n"},
    {L"SHADOWDISPLAY", &newValueTracker<ShadowDisplayCurrencyTracker>, L"CSHADOW",
     L"'_cshadow\n%d\n"},
    {nullptr, nullptr, nullptr, nullptr},
};

// The drawing values without a list of their own, as the drawing context
// follows them. The generic rows write the variable directly: their command
// formats are kept as they stand ("%d" also for reals, the short word of
// VSEDGELEX) and never sent.
constexpr NewTracker kGeneric = &newValueTracker<SysvarCurrencyTracker>;
const DrawingTrackerRow kDrawingRows[] = {
    {L"TRANSPARENCY", &newValueTracker<TransparencyCurrencyTracker>, L"CETRANSPARENCY",
     L"'_cetransparency\n%ls\n"},
    {L"LINETYPESCALE", kGeneric, L"CELTSCALE", L"'_celtscale\n%d\n"},
    {L"TEXTSIZE", kGeneric, L"TEXTSIZE", L"'_textsize\n%d\n"},
    {L"PLOTATTACHMENTSPACE", &newValueTracker<PlotAttachmentSpaceCurrencyTracker>, nullptr,
     nullptr},
    {L"PLOTSTYLETABLETYPE", &newValueTracker<PlotStyleTableTypeCurrencyTracker>, nullptr, nullptr},
    {L"VSMATERIALMODE", kGeneric, L"VSMATERIALMODE", L"'_vsmaterialmode\n%d\n"},
    {L"VSFACECOLORMODE", kGeneric, L"VSFACECOLORMODE", L"'_vsfacecolormode\n%d\n"},
    {L"VSLIGHTINGQUALITY", kGeneric, L"VSLIGHTINGQUALITY", L"'_vslightingquality\n%d\n"},
    {L"VSFACESTYLE", kGeneric, L"VSFACESTYLE", L"'_vsfacestyle\n%d\n"},
    {L"VSEDGES", kGeneric, L"VSEDGES", L"'_vsedges\n%d\n"},
    {L"VSEDGELEX", kGeneric, L"VSEDGELEX", L"'_vsedgele\n%d\n"},
    {L"VSSILHWIDTH", kGeneric, L"VSSILHWIDTH", L"'_vssilhwidth\n%d\n"},
    {L"VSEDGEJITTER", kGeneric, L"VSEDGEJITTER", L"'_vsedgejitter\n%d\n"},
    {L"VSFACEOPACITY", kGeneric, L"VSFACEOPACITY", L"'_vsfaceopacity\n%d\n"},
    {L"SUNSTATUS", kGeneric, L"SUNSTATUS", L"'_sunstatus\n%d\n"},
    {L"RASTERDPI", &newValueTracker<LayoutRasterDPICurrencyTracker>, L"RASTERDPI",
     L"'_rasterdpi\n%d\n"},
    {L"LAYOUT", &newValueTracker<LayoutNameCurrencyTracker>, L"CTAB", nullptr},
    {L"PAGESETUP", &newValueTracker<LayoutPageSetupCurrencyTracker>, nullptr, nullptr},
    {L"TILEMODE", kGeneric, L"TILEMODE", L"'_tilemode\n%d\n"},
    {L"UCSVP", kGeneric, L"UCSVP", L"'_ucsvp\n%d\n"},
    {L"UCSNAME", kGeneric, L"UCSNAME", nullptr},
    {nullptr, nullptr, nullptr, nullptr},
};

}  // namespace

std::span<const KnownCollectionRow> KnownCollectionRows::staticRows() {
    return kRows;
}

const KnownEnumRow* KnownCollectionRows::enumRows() {
    return kEnumRows;
}

const DrawingTrackerRow* KnownCollectionRows::drawingTrackerRows() {
    return kDrawingRows;
}
