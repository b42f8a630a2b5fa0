// KyRefBatchCommand: BATCH. Runs the commands of a file in the current
// document as one batch: its answer is the file's path (relative to the
// host's working folder, or held to the host's file folder: KyRefFileFolder),
// the file holds command text as a user types it, each line one answer (an empty line an empty
// answer). Once BATCH has ended, the host raises documentBecameBusy for the document, runs the
// file's commands one after the other, each a command of its own with its
// undo step and its events, and raises documentBecameQuiet after the last.
// A command of the batch that fails shows its error line, is taken back, and
// the batch goes on with the next one; a command that the file leaves
// waiting for an answer is cancelled when the batch ends.
//
// A file that can't be read is an error line, and nothing runs. A batch
// can't run BATCH itself: that is an error line in the batch, which goes on.
#pragma once

#include "KyRefCommand.h"

class KyRefBatchCommand : public KyRefCommand {
public:
    void run(KyRefCommandContext& context) override;
};
