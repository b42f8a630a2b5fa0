// KyRefHostApplicationServices: what the reference host answers the drawing
// database (KyDbHostApplicationServices): the working database, and whether
// a document may be locked for writing. The lock of a document that the host
// opened read-only is refused with eDocumentReadOnly, so nothing writes to
// it: no command, no service and no data item layer.
//
// One object serves every host of the process, as the platform keeps one
// set of services; a host installs it when it starts (install()), taking the
// working database over from the services installed before, and it stays
// installed while the process runs.
#pragma once

#include <vector>

#include "db/KyDbHostApplicationServices.h"

class KyRefHostApplicationServices : public KyDbHostApplicationServices {
public:
    // Installs the host's services, unless they are installed already.
    static void install();
    static KyRefHostApplicationServices& instance();

    // Whether the host holds `database` read-only.
    void setReadOnly(const KyDbDatabase* database, bool readOnly);
    bool isReadOnly(const KyDbDatabase* database) const;

    Kyro::ErrorStatus lockDocument(KyDbDatabase* database) override;

private:
    KyRefHostApplicationServices() = default;

    std::vector<const KyDbDatabase*> m_readOnly;
};
