// Not part of the interface: the keys of the effective values, one constant
// each. A key is the name of the collection or tracker that holds the value;
// the entry table, the public getters and the drawing context all use these
// constants, so that an entry once bound is found again by the key's address.
#pragma once

namespace EffectiveKeys {

inline constexpr wchar_t kLayer[] = L"LAYER";
inline constexpr wchar_t kLinetype[] = L"LINETYPE";
inline constexpr wchar_t kMaterial[] = L"KYRO_MATERIAL";
inline constexpr wchar_t kLineweight[] = L"LINEWEIGHT";
inline constexpr wchar_t kColor[] = L"COLOR";
inline constexpr wchar_t kDimStyle[] = L"DIMSTYLE";
inline constexpr wchar_t kTextStyle[] = L"TEXTSTYLE";
inline constexpr wchar_t kTableStyle[] = L"KYRO_TABLESTYLE";
inline constexpr wchar_t kMLeaderStyle[] = L"KYRO_MLEADERSTYLE";
inline constexpr wchar_t kSectionViewStyle[] = L"KYRO_SECTIONVIEWSTYLE";
inline constexpr wchar_t kDetailViewStyle[] = L"KYRO_DETAILVIEWSTYLE";
inline constexpr wchar_t kTransparency[] = L"TRANSPARENCY";
inline constexpr wchar_t kVisualStyle[] = L"KYRO_VISUALSTYLE";
inline constexpr wchar_t kScaleList[] = L"SCALELIST";
inline constexpr wchar_t kShadowDisplay[] = L"SHADOWDISPLAY";
inline constexpr wchar_t kLinetypeScale[] = L"LINETYPESCALE";
inline constexpr wchar_t kTextSize[] = L"TEXTSIZE";
inline constexpr wchar_t kPlotStyleName[] = L"KYRO_PLOTSTYLENAME";
inline constexpr wchar_t kPlotStyleTable[] = L"PLOTSTYLETABLE";
inline constexpr wchar_t kPlotAttachmentSpace[] = L"PLOTATTACHMENTSPACE";
inline constexpr wchar_t kPlotStyleTableType[] = L"PLOTSTYLETABLETYPE";
inline constexpr wchar_t kVsMaterialMode[] = L"VSMATERIALMODE";
inline constexpr wchar_t kVsFaceColorMode[] = L"VSFACECOLORMODE";
inline constexpr wchar_t kVsLightingQuality[] = L"VSLIGHTINGQUALITY";
inline constexpr wchar_t kVsFaceStyle[] = L"VSFACESTYLE";
inline constexpr wchar_t kVsEdges[] = L"VSEDGES";
inline constexpr wchar_t kVsEdgeLex[] = L"VSEDGELEX";
inline constexpr wchar_t kVsSilhWidth[] = L"VSSILHWIDTH";
inline constexpr wchar_t kVsEdgeJitter[] = L"VSEDGEJITTER";
inline constexpr wchar_t kVsFaceOpacity[] = L"VSFACEOPACITY";
inline constexpr wchar_t kSunStatus[] = L"SUNSTATUS";
inline constexpr wchar_t kRasterDpi[] = L"RASTERDPI";
inline constexpr wchar_t kLayout[] = L"LAYOUT";
inline constexpr wchar_t kPageSetup[] = L"PAGESETUP";
inline constexpr wchar_t kTileMode[] = L"TILEMODE";
inline constexpr wchar_t kUcsPerViewport[] = L"UCSVP";
inline constexpr wchar_t kUcsName[] = L"UCSNAME";

}  // namespace EffectiveKeys
