// KyAppObjectWatch: `watch object HANDLE`. Watches one object of the drawing
// through the data item layer's object reactor hub and prints what it is
// told, one line each, in the order received: "modified 4B", "erased 4B",
// "activeChanged 4B false". An erased object ends the watch.
#pragma once

#include <ostream>
#include <string>

#include "db/KyDbObjectId.h"
#include "kydi/KyDiObjectReactor.h"

class KyAppObjectWatch : public KyDiObjectReactor {
public:
    KyAppObjectWatch(KyDbObjectId id, std::ostream& out);
    // Takes the watch back, unless the object's erasure ended it.
    ~KyAppObjectWatch() override;
    KyAppObjectWatch(const KyAppObjectWatch&) = delete;
    KyAppObjectWatch& operator=(const KyAppObjectWatch&) = delete;

    // The status of starting the watch.
    Kyro::ErrorStatus start();
    bool isWatching() const { return m_watching; }
    KyDbObjectId id() const { return m_id; }

    void modified(void* reserved) override;
    void activeChanged(bool active) override;
    void erased() override;

private:
    KyDbObjectId m_id;
    std::ostream& m_out;
    std::string m_handle;
    bool m_watching = false;
};
