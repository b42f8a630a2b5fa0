#include "KyRefViewportService.h"

#include <cmath>

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefLayoutViewports.h"
#include "KyRefReadAccess.h"
#include "db/KyAxDocLock.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbViewTableRecord.h"
#include "db/KyDbViewport.h"

KyRefViewportService::KyRefViewportService(KyRefHost& host) : m_host(host) {
    m_background.setColorMethod(KyCmColor::kNone);
}

Kyro::ErrorStatus KyRefViewportService::getCurrentViewportId(KyDbObjectId& out) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    out = KyRefLayoutViewports::viewHolder(database);
    return database != nullptr ? Kyro::eOk : Kyro::eNoCurrentDocument;
}

Kyro::ErrorStatus KyRefViewportService::viewportId(KyDbObjectId& out) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    out = database != nullptr ? KyRefLayoutViewports::entered(database) : KyDbObjectId();
    return database != nullptr ? Kyro::eOk : Kyro::eNoCurrentDocument;
}

Kyro::ErrorStatus KyRefViewportService::viewportKey(KyDbObjectId& out) {
    return getCurrentViewportId(out);
}

Kyro::ErrorStatus KyRefViewportService::currentView(KyRefView& out) const {
    out = KyRefView();
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    const KyDbObjectId id = KyRefLayoutViewports::viewHolder(database);
    if (id.isNull()) {
        return Kyro::eOk;
    }
    KyRefReadAccess<KyDbObject> holder(id);
    return holder ? KyRefView::read(holder.object(), out) : holder.status();
}

Kyro::ErrorStatus KyRefViewportService::changeView(const Change& change) {
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    const KyAxDocLock lock(database);
    if (lock.lockStatus() != Kyro::eOk) {
        return lock.lockStatus();
    }
    KyDbObjectPointer<KyDbObject> holder;
    if (const Kyro::ErrorStatus status = KyRefLayoutViewports::openViewHolder(database, holder);
        status != Kyro::eOk) {
        return status;
    }
    if (const auto* viewport = kyrxCast<KyDbViewport>(holder.object());
        viewport != nullptr && viewport->isLocked()) {
        return Kyro::eNotApplicable;
    }
    KyRefView view;
    if (const Kyro::ErrorStatus status = KyRefView::read(holder.object(), view);
        status != Kyro::eOk) {
        return status;
    }
    if (const Kyro::ErrorStatus status = change(view); status != Kyro::eOk) {
        return status;
    }
    return view.writeTo(holder.object());
}

bool KyRefViewportService::matchesView(const KyDbViewTableRecord* view) {
    KyRefView shown;
    if (view == nullptr || currentView(shown) != Kyro::eOk) {
        return false;
    }
    // A viewport entity's view is as wide as its window: only a record keeps
    // a width of its own.
    return shown.shows(*view, m_host.documents().currentDatabase()->tilemode());
}

Kyro::ErrorStatus KyRefViewportService::restoreView(const KyDbObjectId& viewId) {
    KyRefView restored;
    {
        KyRefReadAccess<KyDbViewTableRecord> view(viewId);
        if (!view) {
            return view.status();
        }
        restored = KyRefView::of(*view.object());
    }
    const Kyro::ErrorStatus status = changeView([&restored](KyRefView& view) {
        view = restored;
        return Kyro::eOk;
    });
    if (status == Kyro::eOk) {
        m_host.regenerateAll();
    }
    return status;
}

Kyro::ErrorStatus KyRefViewportService::getViewPoint(KyGePoint3d& out, int selector) {
    if (selector != kViewCenter && selector != kCameraLocation) {
        return Kyro::eInvalidInput;
    }
    KyRefView view;
    const Kyro::ErrorStatus status = currentView(view);
    out = selector == kViewCenter ? view.center : view.camera();
    return status;
}

Kyro::ErrorStatus KyRefViewportService::setViewPoint(const KyGePoint3d& point, int selector) {
    if (selector == kViewCenter) {
        return changeView([&point](KyRefView& view) {
            view.center = point;
            return Kyro::eOk;
        });
    }
    if (selector == kCameraLocation) {
        return changeView([&point](KyRefView& view) {
            const KyGePoint3d direction(point.x - view.target.x, point.y - view.target.y,
                                        point.z - view.target.z);
            if (direction == KyGePoint3d::kOrigin) {
                return Kyro::eInvalidInput;
            }
            view.direction = direction;
            return Kyro::eOk;
        });
    }
    return Kyro::eInvalidInput;
}

bool KyRefViewportService::isNavBoxOff(KyDbDatabase*) {
    KyRefResbufPtr value;
    return m_host.sysVars().get(L"NAVBOX", value) == KyRefSysVarStatus::kOk &&
           value->resval.rint == 0;
}

bool KyRefViewportService::isViewLocked(KyDbDatabase* database) {
    KyRefReadAccess<KyDbViewport> viewport(KyRefLayoutViewports::viewHolder(database));
    return viewport && viewport->isLocked();
}

double KyRefViewportService::getLensLength() {
    KyRefView view;
    return currentView(view) == Kyro::eOk ? view.lensLength : 0.0;
}

Kyro::ErrorStatus KyRefViewportService::setLensLength(double length) {
    if (!(length > 0.0) || !std::isfinite(length)) {
        return Kyro::eInvalidInput;
    }
    return changeView([length](KyRefView& view) {
        view.lensLength = length;
        return Kyro::eOk;
    });
}

Kyro::ErrorStatus KyRefViewportService::getExposureParameters(
    KyGiPhotographicExposureParameters& out) {
    out = m_exposure;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefViewportService::setExposureParameters(
    const KyGiPhotographicExposureParameters& parameters) {
    m_exposure = parameters;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefViewportService::getBackgroundOverride(KyCmColor& out) {
    out = m_background;
    return Kyro::eOk;
}
