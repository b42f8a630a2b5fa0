// KyRefVisualStyleService: the visual style of the current viewport, kept by
// name so that it follows the current drawing, and the styles a user is
// offered: the visual styles of the drawing's dictionary that are not for
// internal use, in dictionary order. Another style made current regenerates
// the drawing (KyRefHost::regenerateAll), as a real view is drawn anew. The
// view resolution is the variable VIEWRES, whose change regenerates too.
#pragma once

#include "base/KyString.h"
#include "kydi/KyDiVisualStyleService.h"

class KyRefHost;

class KyRefVisualStyleService : public KyDiVisualStyleService {
public:
    // The style a new viewport shows.
    static constexpr const wchar_t* kDefaultStyle = L"2dWireframe";

    explicit KyRefVisualStyleService(KyRefHost& host);

    // The style of the current drawing by the current name; the null id when
    // the drawing has no such style.
    Kyro::ErrorStatus getCurrent(KyDbObjectId& out) override;
    // The style's own kind; kUnlistedStyle for a style for internal use, and
    // for an id that is no visual style.
    int styleKind(const KyDbObjectId& id) override;
    Kyro::ErrorStatus setCurrent(const KyDbObjectId& id, int mode) override;
    Kyro::ErrorStatus getListedStyles(KyDbDatabase* database, KyArray<KyDbObjectId>& ids) override;
    bool isTwoDimensional() override;
    int getViewResolution() override;
    Kyro::ErrorStatus setViewResolution(int resolution) override;

    // ---- State that tests and scripts set
    const KyString& currentName() const { return m_current; }
    void setCurrentName(const wchar_t* name) { m_current = name; }

private:
    KyRefHost& m_host;
    KyString m_current{kDefaultStyle};
};
