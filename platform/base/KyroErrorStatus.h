// Status codes of the platform's operations, and the result codes of the
// host's command and system variable functions.
#pragma once

namespace Kyro {

enum ErrorStatus : int {
    eOk = 0,
    eNotImplementedYet = 1,
    eNotApplicable = 2,  // not available for this object or not now
    eInvalidInput = 3,   // bad argument, wrong value type, name not found
    eAmbiguousInput = 4,
    eAmbiguousOutput = 5,  // values differ between the objects read
    eNoIterator = 6,       // an iterator was asked for and none was given
    eBufferTooSmall = 7,
    eInvalidOpenState = 8,
    eNullObjectId = 10,
    eNullHandle = 11,
    eKeyNotFound = 13,
    eDuplicateKey = 14,
    eInvalidIndex = 20,
    eNullSubentity = 22,  // a selected object without a sub-entity to open
    eNotThatKindOfClass = 46,
    eWrongDatabase = 56,
    eNotInDatabase = 60,
    eWasErased = 63,
    eWasOpenedForWrite = 67,
    eWasOpenedForRead = 68,
    eWasNotOpenForWrite = 69,
    eWasNotErased = 70,
    eWasOpenedForNotify = 71,
    eUnresolvedReference = 83,  // an external reference whose drawing is not loaded
    eAllObjectsExcluded = 87,
    eCannotSetSysVar = 91,
    eInvalidName = 95,
    eNoCurrentDocument = 124,
    eLockViolation = 130,     // a write without the document lock
    eDocumentReadOnly = 131,  // the host holds the document read-only and refuses its lock
    eNullObjectPointer = 335,
    eNotSupported = 431,
    eNotShown = 528,  // an object that is not to be listed
    eInvalidObjectId = 600,
    // The drawing database.
    eDuplicateRecordName = 96,      // a record of that name stands in the table already
    eAlreadyInDb = 97,              // the object belongs to a database already
    eHandleInUse = 98,              // another object of the database holds that handle
    eObjectToBeDeleted = 99,        // the object is leaving memory with its database
    eCannotBeErasedByCaller = 100,  // a standard record the drawing can't do without
    eCannotBeRenamed = 101,         // a standard record whose name is fixed (layer "0")
};

}  // namespace Kyro

// Results of the host's command and system variable functions. They are not
// Kyro::ErrorStatus values.
constexpr int KYRT_NORM = 5100;       // normal completion
constexpr int KYRT_ERROR = -5001;     // error
constexpr int KYRT_REJECTED = -5003;  // rejected: unknown name, value out of range, read-only
