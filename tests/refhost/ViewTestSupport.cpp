#include "ViewTestSupport.h"

#include "db/KyDbObjectPointer.h"

namespace refhost {

const char* const kViewsDrawing = R"({
 "format": "kydrawing",
 "version": 1,
 "header": {"TILEMODE": 1},
 "layers": [{"handle": "10", "name": "0"}, {"handle": "20", "name": "Walls"}],
 "views": [
  {"handle": "45", "name": "North", "center": [5, 6], "height": 10, "width": 16}
 ],
 "viewports": [
  {"handle": "49", "name": "*Active", "center": [50, 30], "height": 90, "width": 120}
 ],
 "blocks": [
  {"handle": "1A", "name": "*Model_Space", "layout": "2A", "entities": []},
  {"handle": "1B", "name": "*Paper_Space", "layout": "2B", "entities": [
   {"type": "VIEWPORT", "handle": "40", "center": [210, 148.5], "width": 420, "height": 297,
    "viewCenter": [210, 148.5], "viewHeight": 297},
   {"type": "VIEWPORT", "handle": "41", "center": [100, 100], "width": 100, "height": 50,
    "viewCenter": [0, 0], "viewHeight": 40},
   {"type": "VIEWPORT", "handle": "42", "center": [300, 100], "width": 100, "height": 80,
    "viewCenter": [0, 0], "viewHeight": 50, "on": false},
   {"type": "VIEWPORT", "handle": "43", "center": [300, 250], "width": 100, "height": 80,
    "viewCenter": [7, 7], "viewHeight": 50, "locked": true}
  ]},
  {"handle": "1C", "name": "*Paper_Space0", "layout": "2C", "entities": [
   {"type": "VIEWPORT", "handle": "50", "center": [210, 148.5], "width": 420, "height": 297,
    "viewCenter": [210, 148.5], "viewHeight": 297},
   {"type": "VIEWPORT", "handle": "51", "center": [100, 100], "width": 100, "height": 80,
    "viewCenter": [0, 0], "viewHeight": 50}
  ]}
 ],
 "objects": {"type": "DICTIONARY", "handle": "C", "entries": {
  "KYRO_LAYOUT": {"type": "DICTIONARY", "handle": "D", "entries": {
   "Model": {"type": "LAYOUT", "handle": "2A", "name": "Model", "tabOrder": 0, "block": "1A"},
   "Plan": {"type": "LAYOUT", "handle": "2B", "name": "Plan", "tabOrder": 1, "block": "1B"},
   "Details": {"type": "LAYOUT", "handle": "2C", "name": "Details", "tabOrder": 2, "block": "1C"}
  }}
 }}
})";

void ClosedSpy::objectClosed(KyDbObjectId id) {
    m_spy.add("objectClosed " + KyDbHandle(id.handle()).text().utf8());
}

ViewsFixture::ViewsFixture() {
    openDrawing(kViewsDrawing);
}

ViewsFixture::~ViewsFixture() {
    for (const KyDbObjectId id : m_watched) {
        KyDbObjectPointer<KyDbObject> object(id, KyDb::kForNotify, true);
        if (object) {
            object->removeReactor(&closedSpy);
        }
    }
}

void ViewsFixture::watchClosed(const wchar_t* handle) {
    const KyDbObjectId id = object(handle);
    KyDbObjectPointer<KyDbObject> watched(id, KyDb::kForNotify);
    ASSERT_TRUE(watched);
    watched->addReactor(&closedSpy);
    m_watched.push_back(id);
}

KyDbObjectId ViewsFixture::currentViewport() const {
    KyDbObjectId id;
    host->viewportService()->getCurrentViewportId(id);
    return id;
}

}  // namespace refhost
