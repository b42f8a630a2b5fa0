// Internal to the drawing database; not part of the platform's interface.
//
// Runtime classes of the database. A class whose objects can be made by class
// (a reader makes a record from its class name:
// kyrxFindKyRxClass(name)->create()) has a constructor; a base class has none.
// Every class carries its local name (KyRxLocalizedNameAttribute, from
// KyDbPropertyTexts) when the platform has a text for it, and builds its
// reflected members from a table of rows (KyDbPropertyTable.h). A class whose
// rows have formulas serves KyRxPropertyExpressionPE for them from the start.
#pragma once

#include "db/KyDbPropertyExpression.h"
#include "db/KyDbPropertyTable.h"
#include "rx/KyRxClass.h"
#include "rx/KyRxObject.h"

template <typename T>
KyRxObject* kydbiConstruct() {
    return new T();
}

// Registers a class of the database under `parent` with its local name and
// the type word a drawing file names its objects by (null for none).
KyRxClass* kydbiRegisterClass(const wchar_t* className, KyRxClass* parent,
                              KyRxPseudoConstructor constructor,
                              KyRxMemberCollectionConstructorPtr builder,
                              const wchar_t* dxfName = nullptr);

#define KYDB_DEFINE_CLASS_EX(CLASS, PARENT, CONSTRUCTOR, BUILDER)                 \
    KyRxClass* CLASS::desc() {                                                    \
        static KyRxClass* s_class =                                               \
            kydbiRegisterClass(L## #CLASS, PARENT::desc(), CONSTRUCTOR, BUILDER); \
        return s_class;                                                           \
    }                                                                             \
    KyRxClass* CLASS::isA() const {                                               \
        return CLASS::desc();                                                     \
    }

// A class with the members of ROWS and the formulas among them, named WORD
// in a drawing file (nullptr for a class the file has no word for).
#define KYDB_DEFINE_CLASS_WORD(CLASS, PARENT, CONSTRUCTOR, ROWS, WORD)                 \
    KyRxClass* CLASS::desc() {                                                         \
        static KyRxClass* s_class = kydbiAddFormulas<ROWS>(kydbiRegisterClass(         \
            L## #CLASS, PARENT::desc(), CONSTRUCTOR, &kydbiBuildMembers<ROWS>, WORD)); \
        return s_class;                                                                \
    }                                                                                  \
    KyRxClass* CLASS::isA() const {                                                    \
        return CLASS::desc();                                                          \
    }

// A class with the members of ROWS and the formulas among them.
#define KYDB_DEFINE_CLASS_ROWS(CLASS, PARENT, CONSTRUCTOR, ROWS) \
    KYDB_DEFINE_CLASS_WORD(CLASS, PARENT, CONSTRUCTOR, ROWS, nullptr)

// A class made by class, without members of its own.
#define KYDB_DEFINE_MEMBERS(CLASS, PARENT) \
    KYDB_DEFINE_CLASS_EX(CLASS, PARENT, &kydbiConstruct<CLASS>, nullptr)
// A class made by class, with the members of ROWS.
#define KYDB_DEFINE_CLASS(CLASS, PARENT, ROWS) \
    KYDB_DEFINE_CLASS_ROWS(CLASS, PARENT, &kydbiConstruct<CLASS>, ROWS)
// An entity class made by class, with the members of ROWS, whose objects a
// drawing file names by the type word WORD (a wide literal).
#define KYDB_DEFINE_ENTITY(CLASS, PARENT, ROWS, WORD) \
    KYDB_DEFINE_CLASS_WORD(CLASS, PARENT, &kydbiConstruct<CLASS>, ROWS, WORD)
// A base class (not made by class), with the members of ROWS.
#define KYDB_DEFINE_BASE_CLASS(CLASS, PARENT, ROWS) \
    KYDB_DEFINE_CLASS_ROWS(CLASS, PARENT, nullptr, ROWS)
