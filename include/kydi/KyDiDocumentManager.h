// KyDiDocumentManager: the host's list of open documents, as the data item
// layer sees it. Documents are named by KyDiDocument handles; each open
// document has one drawing database. The host always has a document manager,
// also when no document is open.
#pragma once

#include "base/KyString.h"
#include "db/KyDbObjectId.h"
#include "kydi/KyDiExport.h"
#include "kydi/KyDiTypes.h"

class KyDbDatabase;

class KYDI_API KyDiDocumentManager {
public:
    virtual ~KyDiDocumentManager() = default;

    // How many documents are open.
    virtual int documentCount() = 0;
    // The open document at `index` (0 to documentCount() - 1, in the order
    // they were opened); kKyDiNoDocument out of range.
    virtual KyDiDocument document(int index) = 0;
    // The document in front; kKyDiNoDocument when none is open.
    virtual KyDiDocument currentDocument() = 0;
    // The document that owns `database`; kKyDiNoDocument for a null database
    // or one without a document (a drawing read in the background).
    virtual KyDiDocument documentOf(KyDbDatabase* database) = 0;
    // The database of `document`; null when it has none or the handle is not
    // a document that is open.
    virtual KyDbDatabase* databaseOf(KyDiDocument document) = 0;
    // The database that commands work on now; null when there is none.
    virtual KyDbDatabase* workingDatabase() = 0;
    // The name under which `document` is shown (its file name); empty for a
    // handle that is not a document that is open.
    virtual KyString documentName(KyDiDocument document) = 0;
    // False while `document` can put a question to the user; true when it
    // can't (no question is put to the user then).
    virtual bool isDocumentQuiescent(KyDiDocument document) = 0;
    // Writes to `out` the id of the long transaction that `document` runs
    // now (a block edited in place); the null id when there is none.
    virtual void longTransactionId(KyDbObjectId& out, KyDiDocument document) = 0;
};
