// Internal to the platform: the steps that make the platform's own runtime
// classes and value types known by name. The class registry runs them once,
// at the first lookup by name, so that kyrxFindKyRxClass finds a platform
// class that nobody has asked for by desc() yet.
#pragma once

// Classes of the runtime library (objects, classes, members, attributes ...).
void kyrxRegisterRuntimeClasses();
// The value types of Desc<T> and the classes behind them.
void kyrxRegisterValueTypes();
// Classes of the drawing database library.
void kyrxRegisterDatabaseClasses();
