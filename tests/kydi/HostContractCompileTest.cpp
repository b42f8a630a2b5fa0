// The host contract as an application builds against it: every header
// compiles on its own terms, every interface is one an application
// implements, and the operations and events keep their slots.
#include <gtest/gtest.h>

#include <type_traits>

#include "kydi/KyDiColorService.h"
#include "kydi/KyDiCountingRecord.h"
#include "kydi/KyDiCountingService.h"
#include "kydi/KyDiDocumentManager.h"
#include "kydi/KyDiEditorService.h"
#include "kydi/KyDiExport.h"
#include "kydi/KyDiExternalReferenceHost.h"
#include "kydi/KyDiHost.h"
#include "kydi/KyDiHostReactor.h"
#include "kydi/KyDiImageService.h"
#include "kydi/KyDiLayerService.h"
#include "kydi/KyDiPlotService.h"
#include "kydi/KyDiRecentBlockService.h"
#include "kydi/KyDiRegenerationService.h"
#include "kydi/KyDiRenderService.h"
#include "kydi/KyDiScaleListService.h"
#include "kydi/KyDiSelectionService.h"
#include "kydi/KyDiTypes.h"
#include "kydi/KyDiUcsService.h"
#include "kydi/KyDiViewportService.h"
#include "kydi/KyDiVisualStyleService.h"
#include "support/VirtualSlot.h"

namespace {

// An interface left to the application to implement, and deleted through
// the interface.
template <typename Interface>
constexpr bool implementedByTheApplication =
    std::conjunction_v<std::is_abstract<Interface>, std::has_virtual_destructor<Interface>>;
template <typename... Interfaces>
constexpr bool allImplementedByTheApplication = (implementedByTheApplication<Interfaces> && ...);

static_assert(allImplementedByTheApplication<
              KyDiHost, KyDiHostReactor, KyDiDocumentManager, KyDiEditorService,
              KyDiViewportService, KyDiVisualStyleService, KyDiSelectionService,
              KyDiRegenerationService, KyDiUcsService, KyDiLayerService, KyDiPlotService,
              KyDiRenderService, KyDiColorService, KyDiScaleListService, KyDiImageService,
              KyDiRecentBlockService, KyDiCountingService, KyDiExternalReferenceHost>);

// The numbers that pass between the application and the layer.
static_assert(KyDiLayerService::kTurnLayerOn == 1001 && KyDiLayerService::kLeaveLayerOff == 1002);
static_assert(KyDiSelectionService::kChangeProperties == 1);
static_assert(KyDiVisualStyleService::kUnlistedStyle == 20067);
static_assert(KyDiViewportService::kViewCenter == 0 && KyDiViewportService::kCameraLocation == 1);
static_assert(KyDiRenderService::kDrawingPresets == 0);

TEST(HostContract, DocumentHandleIsPointerWideWithTwoMarks) {
    EXPECT_EQ(sizeof(void*), sizeof(KyDiDocument));
    EXPECT_EQ(0, kKyDiNoDocument);
    EXPECT_EQ(-1, kKyDiUnboundDocument);
}

#if KYTEST_HAS_VIRTUAL_SLOTS

using kytest::slotOf;

// Hosts built against this order stay compatible only while it holds: the
// destructor comes first, then the operations in this order.
TEST(HostContract, HostOperationsKeepTheirSlots) {
    EXPECT_EQ(2, slotOf(&KyDiHost::addReactor));
    EXPECT_EQ(3, slotOf(&KyDiHost::removeReactor));
    EXPECT_EQ(4, slotOf(&KyDiHost::documentManager));
    EXPECT_EQ(5, slotOf(&KyDiHost::editor));
    EXPECT_EQ(6, slotOf(&KyDiHost::viewportService));
    EXPECT_EQ(7, slotOf(&KyDiHost::visualStyleService));
    EXPECT_EQ(8, slotOf(&KyDiHost::selectionService));
    EXPECT_EQ(9, slotOf(&KyDiHost::regenerationService));
    EXPECT_EQ(10, slotOf(&KyDiHost::ucsService));
    EXPECT_EQ(11, slotOf(&KyDiHost::layerService));
    EXPECT_EQ(12, slotOf(&KyDiHost::plotService));
    EXPECT_EQ(13, slotOf(&KyDiHost::renderService));
    EXPECT_EQ(14, slotOf(&KyDiHost::colorService));
    EXPECT_EQ(15, slotOf(&KyDiHost::scaleListService));
    EXPECT_EQ(16, slotOf(&KyDiHost::imageService));
    EXPECT_EQ(17, slotOf(&KyDiHost::recentBlockService));
    EXPECT_EQ(18, slotOf(&KyDiHost::reservedService));
    EXPECT_EQ(19, slotOf(&KyDiHost::countingService));
}

TEST(HostContract, ReactorEventsKeepTheirSlots) {
    EXPECT_EQ(2, slotOf(&KyDiHostReactor::refreshNeeded));
    EXPECT_EQ(3, slotOf(&KyDiHostReactor::documentToBeDestroyed));
    EXPECT_EQ(4, slotOf(&KyDiHostReactor::documentDestroyed));
    EXPECT_EQ(5, slotOf(&KyDiHostReactor::documentDestructionDone));
    EXPECT_EQ(6, slotOf(&KyDiHostReactor::sysVarChanged));
    EXPECT_EQ(7, slotOf(&KyDiHostReactor::sysVarWillChange));
    EXPECT_EQ(8, slotOf(&KyDiHostReactor::commandWillStart));
    EXPECT_EQ(9, slotOf(&KyDiHostReactor::hostStateChanged));
    EXPECT_EQ(10, slotOf(&KyDiHostReactor::invalidateAll));
    EXPECT_EQ(11, slotOf(&KyDiHostReactor::drawingContentChanged));
    EXPECT_EQ(12, slotOf(&KyDiHostReactor::commandEnded));
    EXPECT_EQ(13, slotOf(&KyDiHostReactor::ucsChanged));
    EXPECT_EQ(14, slotOf(&KyDiHostReactor::plotSettingsChanged));
    EXPECT_EQ(15, slotOf(&KyDiHostReactor::plotSettingsChangedForLayout));
    EXPECT_EQ(16, slotOf(&KyDiHostReactor::layoutChanged));
    EXPECT_EQ(17, slotOf(&KyDiHostReactor::documentBecameQuiet));
    EXPECT_EQ(18, slotOf(&KyDiHostReactor::documentBecameBusy));
}

TEST(HostContract, DocumentManagerAndEditorKeepTheirSlots) {
    EXPECT_EQ(2, slotOf(&KyDiDocumentManager::documentCount));
    EXPECT_EQ(3, slotOf(&KyDiDocumentManager::document));
    EXPECT_EQ(4, slotOf(&KyDiDocumentManager::currentDocument));
    EXPECT_EQ(5, slotOf(&KyDiDocumentManager::documentOf));
    EXPECT_EQ(6, slotOf(&KyDiDocumentManager::databaseOf));
    EXPECT_EQ(7, slotOf(&KyDiDocumentManager::workingDatabase));
    EXPECT_EQ(8, slotOf(&KyDiDocumentManager::documentName));
    EXPECT_EQ(9, slotOf(&KyDiDocumentManager::isDocumentQuiescent));
    EXPECT_EQ(10, slotOf(&KyDiDocumentManager::longTransactionId));

    EXPECT_EQ(2, slotOf(&KyDiEditorService::sendCommand));
    EXPECT_EQ(3, slotOf(&KyDiEditorService::getVar));
    EXPECT_EQ(4, slotOf(&KyDiEditorService::setVar));
    EXPECT_EQ(5, slotOf(&KyDiEditorService::prompt));
    EXPECT_EQ(6, slotOf(&KyDiEditorService::beginCommand));
    EXPECT_EQ(7, slotOf(&KyDiEditorService::endCommand));
    EXPECT_EQ(8, slotOf(&KyDiEditorService::localCommandName));

    EXPECT_EQ(2, slotOf(&KyDiExternalReferenceHost::getBackgroundOverride));
}

#endif

}  // namespace
