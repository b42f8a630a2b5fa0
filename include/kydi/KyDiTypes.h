// Small types shared by the host contract and the data item layer.
#pragma once

#include <cstdint>

// The handle of an open document, as the host's document manager gives it out.
// It is one pointer wide and opaque: the system only compares handles and
// hands them back to the document manager. 0 stands for no document; -1 is
// the mark of a binding whose document has gone (never a real document).
using KyDiDocument = std::intptr_t;

// No document: what the document manager answers when none is open.
inline constexpr KyDiDocument kKyDiNoDocument = 0;
// An unbound binding: the document it was bound to has been destroyed.
inline constexpr KyDiDocument kKyDiUnboundDocument = -1;

static_assert(sizeof(KyDiDocument) == sizeof(void*), "a document handle is one pointer wide");
