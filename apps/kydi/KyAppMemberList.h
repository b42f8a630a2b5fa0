// KyAppMemberList: `members HANDLE`. The members of a drawing object as a
// palette sees them, through the object's data item, one line each:
//   NAME "LOCAL NAME" [CATEGORY ORDER] = VALUE
// with "[-]" for a member no category places, and " (read-only)" behind a
// member the palette may not edit. A member that can't be read now shows why.
#pragma once

#include <ostream>

class KyDiDynamicObject;

class KyAppMemberList {
public:
    static void print(KyDiDynamicObject* item, std::ostream& out);
};
