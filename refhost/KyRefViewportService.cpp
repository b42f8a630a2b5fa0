#include "KyRefViewportService.h"

#include <cmath>

#include "KyRefDocumentManager.h"
#include "KyRefHost.h"
#include "KyRefReadAccess.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbSymbolTable.h"
#include "db/KyDbViewTableRecord.h"

namespace {

constexpr double kTolerance = 1e-9;

bool same(double a, double b) {
    return std::fabs(a - b) <= kTolerance;
}

}  // namespace

KyRefViewportService::KyRefViewportService(KyRefHost& host) : m_host(host) {
    m_background.setColorMethod(KyCmColor::kNone);
}

Kyro::ErrorStatus KyRefViewportService::getCurrentViewportId(KyDbObjectId& out) {
    out = m_currentViewport;
    if (!out.isNull()) {
        return Kyro::eOk;
    }
    KyDbDatabase* database = m_host.documents().currentDatabase();
    if (database == nullptr) {
        return Kyro::eNoCurrentDocument;
    }
    if (database->tilemode()) {
        KyRefReadAccess<KyDbSymbolTable> viewports(database->viewportTableId());
        if (viewports) {
            viewports->getAt(L"*Active", out);
        }
    }
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefViewportService::viewportId(KyDbObjectId& out) {
    out = m_viewportEntity;
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefViewportService::viewportKey(KyDbObjectId& out) {
    if (!m_viewportEntity.isNull()) {
        out = m_viewportEntity;
        return Kyro::eOk;
    }
    return getCurrentViewportId(out);
}

bool KyRefViewportService::matchesView(const KyDbViewTableRecord* view) {
    return view != nullptr && view->centerPoint() == m_view.center &&
           same(view->height(), m_view.height) && same(view->width(), m_view.width) &&
           view->target() == m_view.target && view->viewDirection() == m_view.direction;
}

Kyro::ErrorStatus KyRefViewportService::restoreView(const KyDbObjectId& viewId) {
    KyRefReadAccess<KyDbViewTableRecord> view(viewId);
    if (!view) {
        return view.status();
    }
    m_view.center = view->centerPoint();
    m_view.height = view->height();
    m_view.width = view->width();
    m_view.target = view->target();
    m_view.direction = view->viewDirection();
    return Kyro::eOk;
}

Kyro::ErrorStatus KyRefViewportService::getViewPoint(KyGePoint3d& out, int selector) {
    if (selector == kViewCenter) {
        out = m_view.center;
        return Kyro::eOk;
    }
    if (selector == kCameraLocation) {
        out.set(m_view.target.x + m_view.direction.x, m_view.target.y + m_view.direction.y,
                m_view.target.z + m_view.direction.z);
        return Kyro::eOk;
    }
    return Kyro::eInvalidInput;
}

Kyro::ErrorStatus KyRefViewportService::setViewPoint(const KyGePoint3d& point, int selector) {
    if (selector == kViewCenter) {
        m_view.center = point;
        return Kyro::eOk;
    }
    if (selector == kCameraLocation) {
        const KyGePoint3d direction(point.x - m_view.target.x, point.y - m_view.target.y,
                                    point.z - m_view.target.z);
        if (direction == KyGePoint3d::kOrigin) {
            return Kyro::eInvalidInput;
        }
        m_view.direction = direction;
        return Kyro::eOk;
    }
    return Kyro::eInvalidInput;
}

bool KyRefViewportService::isNavBoxOff(KyDbDatabase*) {
    return m_navBoxOff;
}

bool KyRefViewportService::isViewLocked(KyDbDatabase*) {
    return m_viewLocked;
}

double KyRefViewportService::getLensLength() {
    return m_lensLength;
}

Kyro::ErrorStatus KyRefViewportService::setLensLength(double length) {
    if (!(length > 0.0) || !std::isfinite(length)) {
        return Kyro::eInvalidInput;
    }
    m_lensLength = length;
    return Kyro::eOk;
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
