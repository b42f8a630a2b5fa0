#include "KyRefXAttachCommand.h"

#include <filesystem>
#include <memory>
#include <system_error>

#include "KyRefCommandContext.h"
#include "KyRefDocument.h"
#include "KyRefDocumentManager.h"
#include "KyRefDrawingIo.h"
#include "KyRefHost.h"
#include "KyRefXrefLayers.h"
#include "db/KyDbBlockTableRecord.h"
#include "db/KyDbDatabase.h"
#include "db/KyDbObjectPointer.h"
#include "db/KyDbSymbolTable.h"

namespace {

bool isSameFile(const KyString& a, const KyString& b) {
    if (a.isEmpty() || b.isEmpty()) {
        return false;
    }
    std::error_code error;
    return std::filesystem::equivalent(std::filesystem::path(a.utf8()),
                                       std::filesystem::path(b.utf8()), error);
}

void addReferenceBlock(KyRefCommandContext& context, const KyString& name, const KyString& path) {
    KyDbObjectPointer<KyDbSymbolTable> blocks(context.database()->blockTableId(), KyDb::kForWrite);
    auto block = std::make_unique<KyDbBlockTableRecord>();
    block->setName(name);
    block->setPathName(path);
    if (!blocks || blocks->add(block.get()) != Kyro::eOk) {
        blocks.close();
        context.fail(L"Cannot add the block \"%ls\".", name.kwszPtr());
    }
    block.release()->close();
}

}  // namespace

void KyRefXAttachCommand::run(KyRefCommandContext& context) {
    const KyString path =
        KyRefCommandContext::literal(context.readLine(L"Enter name of file to attach: "));
    if (path.isEmpty()) {
        return;
    }
    KyString file;
    if (!context.host().fileFolder().resolve(path, file)) {
        context.fail(L"Cannot read \"%ls\": it lies outside the folder of the host's files.",
                     path.kwszPtr());
    }
    // Paths go to the file system as UTF-8 bytes: a wide text it can't
    // convert (a typed character that is no valid code point) is no fault.
    const KyString name = KyString::fromUtf8(std::filesystem::path(path.utf8()).stem().string());
    if (KyDbBlockTableRecord().setName(name) != Kyro::eOk) {
        context.fail(L"\"%ls\" is no valid name for a reference.", name.kwszPtr());
    }
    {
        KyDbObjectPointer<KyDbSymbolTable> blocks(context.database()->blockTableId(),
                                                  KyDb::kForRead);
        if (blocks && blocks->has(name)) {
            blocks.close();
            context.fail(L"A block named \"%ls\" exists already.", name.kwszPtr());
        }
    }
    if (isSameFile(file, context.document()->path())) {
        context.fail(L"A drawing can't be attached to itself.");
    }
    KyRefDrawingIo* io = context.host().documents().drawingIo();
    if (io == nullptr) {
        context.fail(L"Cannot read drawing files.");
    }
    KyString error;
    const std::unique_ptr<KyDbDatabase> reference = io->read(file, error);
    if (reference == nullptr) {
        context.fail(L"%ls", error.kwszPtr());
    }
    context.message(L"Attach Xref \"%ls\": %ls", name.kwszPtr(), path.kwszPtr());
    addReferenceBlock(context, name, path);
    const int layers = KyRefXrefLayers::bring(reference.get(), context.database(), name, error);
    if (layers < 0) {
        context.fail(L"%ls", error.kwszPtr());
    }
    context.message(L"\"%ls\" loaded: %d layers.", name.kwszPtr(), layers);
}
