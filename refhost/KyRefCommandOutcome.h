// How a command leaves its run() other than by returning: the reader throws
// these through the command, which holds what it opened in scope objects.
// A cancel mark ends the command; a failure has shown its error line; a
// command waiting for an answer that hasn't been typed yet is run again from
// its start once more input comes (its changes so far are taken back, and
// what it showed is not shown twice).
#pragma once

#include <cstddef>

struct KyRefCommandCancelled {};
struct KyRefCommandFailed {};
// `position` is where the answer that isn't complete begins in the input.
struct KyRefCommandWaiting {
    std::size_t position = 0;
};
