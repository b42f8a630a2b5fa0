// KyRefCommand: one command of the reference host. run() reads the
// command's answers one by one from its context, with a prompt for each, and
// does its work on the context's document. Everything it changes in the
// drawing stands in one undo group, under the document lock, and is taken
// back when the command is cancelled or fails; it changes what lies outside
// the drawing (the selection, the host's state) only after its last answer.
//
// The commands are listed in KyRefCommandTable: a row names the command
// (global and local name), says how it runs, and makes it.
#pragma once

class KyRefCommandContext;

class KyRefCommand {
public:
    virtual ~KyRefCommand() = default;
    virtual void run(KyRefCommandContext& context) = 0;
};
