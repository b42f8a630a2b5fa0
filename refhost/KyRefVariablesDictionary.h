// KyRefVariablesDictionary: the variables dictionary of the reference host,
// with one KyRefVariable for every row of its table. The host installs it
// while it lives.
#pragma once

#include "rx/KyRxVariablesDictionary.h"

class KyRefHost;

class KyRefVariablesDictionary : public KyRxVariablesDictionary {
public:
    explicit KyRefVariablesDictionary(KyRefHost& host);
};
