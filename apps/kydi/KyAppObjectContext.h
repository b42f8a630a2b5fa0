// KyAppObjectContext: the program's context over one drawing object, made by
// `context #HANDLE` and added to the context manager under that name. It
// stands for the object as long as the script runs; the script takes it out
// of the manager and deletes it before the layer stops.
#pragma once

#include "kydi/KyDiDbObjectContext.h"

class KyAppObjectContext : public KyDiDbObjectContext {
public:
    KyAppObjectContext(const wchar_t* name, KyDbObjectId id)
        : KyDiDbObjectContext(name), m_id(id) {}

protected:
    KyDbObjectId getObjectId() const override { return m_id; }

private:
    KyDbObjectId m_id;
};
