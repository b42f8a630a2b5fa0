// KyAppContextWatch: `watch context NAME` and `watch contexts`. A reactor on
// the context manager that prints what it tells, one line each, in the order
// received:
//   contextChanged VIEWPORT [CameraLocation, ViewCenter]
//   contextChanged VIEWPORT []          (a change reported without names)
//   activeContextsChanged               (only when watching every context)
#pragma once

#include <ostream>
#include <string>

#include "kydi/KyDiContextReactor.h"

class KyAppContextWatch : public KyDiContextReactor {
public:
    // An empty `name` watches every context. Joins the manager's reactors.
    KyAppContextWatch(std::string name, std::ostream& out);
    // Leaves them.
    ~KyAppContextWatch() override;
    KyAppContextWatch(const KyAppContextWatch&) = delete;
    KyAppContextWatch& operator=(const KyAppContextWatch&) = delete;

    const std::string& name() const { return m_name; }

    void contextChanged(const KyDiContextChange* change) override;
    void activeContextsChanged() override;

private:
    std::string m_name;
    std::ostream& m_out;
};
