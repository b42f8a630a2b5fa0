// Support for the tests of views, layouts and viewports: a drawing with the
// active configuration of model space, two layouts with viewports of every
// kind and a named view, and a reactor that writes objectClosed among the
// host's events.
#pragma once

#include <vector>

#include "LayerTestSupport.h"
#include "db/KyDbObjectReactor.h"

namespace refhost {

// Model space shown, its view in "*Active" (49). The layout "Plan"
// (*Paper_Space) has the paper 40 and the viewports 41 (on), 42 (off) and
// 43 (locked); the layout "Details" (*Paper_Space0) the paper 50 and the
// viewport 51. The view "North" (45) looks at [5, 6] from above.
extern const char* const kViewsDrawing;

// Writes "objectClosed HANDLE" to an event spy's record.
class ClosedSpy : public KyDbObjectReactor {
public:
    explicit ClosedSpy(EventSpy& spy) : m_spy(spy) {}
    void objectClosed(KyDbObjectId id) override;

private:
    EventSpy& m_spy;
};

class ViewsFixture : public LayerFixture {
protected:
    ViewsFixture();
    ~ViewsFixture() override;

    // Hears objectClosed of the object `handle` until the test ends.
    void watchClosed(const wchar_t* handle);
    KyDbObjectId currentViewport() const;

    ClosedSpy closedSpy{spy};

private:
    std::vector<KyDbObjectId> m_watched;
};

}  // namespace refhost
