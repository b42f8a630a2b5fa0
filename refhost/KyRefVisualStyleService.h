// KyRefVisualStyleService: the visual style of the current viewport, and the
// styles a user is offered: the visual styles of the drawing's dictionary
// that are not for internal use, in dictionary order.
//
// The style shown is kept in the drawing, by the object that holds the view
// shown (KyRefLayoutViewports::viewHolder): each drawing and each viewport has
// its own, a change of it is a change of that object (undone with it and
// heard by its reactors), and a holder that names none, or names a style
// erased since, shows the default style. Another style made current
// regenerates the drawing (KyRefHost::regenerateAll), as a real view is drawn
// anew. The view resolution is the variable VIEWRES, whose change regenerates
// too.
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiVisualStyleService.h"

class KyRefHost;

class KyRefVisualStyleService : public KyDiVisualStyleService {
public:
    // The style a new viewport shows.
    static constexpr const wchar_t* kDefaultStyle = L"2dWireframe";

    explicit KyRefVisualStyleService(KyRefHost& host);

    // The style the current drawing shows; the null id when it shows the
    // default style and has no style of that name.
    Kyro::ErrorStatus getCurrent(KyDbObjectId& out) override;
    // The style's own kind; kUnlistedStyle for a style for internal use, and
    // for an id that is no visual style.
    int styleKind(const KyDbObjectId& id) override;
    Kyro::ErrorStatus setCurrent(const KyDbObjectId& id, int mode) override;
    Kyro::ErrorStatus getListedStyles(KyDbDatabase* database, KyArray<KyDbObjectId>& ids) override;
    bool isTwoDimensional() override;
    int getViewResolution() override;
    Kyro::ErrorStatus setViewResolution(int resolution) override;

    // The name of the style the current drawing shows; the default style's
    // name without a drawing.
    KyString currentName();

    // ---- The style a drawing shows, for commands that run without the service
    // The style `database` shows, as getCurrent answers it.
    static KyDbObjectId shownStyle(KyDbDatabase* database);
    // Makes `styleId`, a visual style of `database`, the one its view holder
    // shows; `changed` tells whether it showed another. The caller holds the
    // document's lock.
    static Kyro::ErrorStatus showStyle(KyDbDatabase* database, KyDbObjectId styleId, bool& changed);

private:
    KyRefHost& m_host;
};
