#include "KyPalWindow.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include "KyPalCommandLine.h"
#include "KyPalCurrentLayerBox.h"
#include "KyPalLayerTable.h"
#include "KyPalLayerTableModel.h"
#include "KyPalPropertyPanel.h"
#include "KyRefHost.h"
#include "kydi/KyDiManager.h"
#include "kydiqt/KyDiQtCollectionModel.h"

KyPalWindow::KyPalWindow(KyRefHost& host, QWidget* parent)
    : QWidget(parent),
      m_host(host),
      m_layers(new KyDiQtCollectionModel(KyDiManager::getKnownCollection(L"LAYER"),
                                         KyPalLayerTableModel::columnProperties(), this)),
      m_layerTable(new KyPalLayerTable(m_layers, this)),
      m_currentLayer(new KyPalCurrentLayerBox(m_layers, this)),
      m_properties(new KyPalPropertyPanel(this)),
      m_commandLine(new KyPalCommandLine(host, this)),
      m_timer(new QTimer(this)) {
    m_currentLayer->setObjectName("currentLayer");

    auto* current = new QHBoxLayout;
    current->addWidget(new QLabel(tr("Current layer:"), this));
    current->addWidget(m_currentLayer);
    current->addStretch(1);
    auto* layerBox = new QGroupBox(tr("Layers"), this);
    auto* layerLayout = new QVBoxLayout(layerBox);
    layerLayout->addLayout(current);
    layerLayout->addWidget(m_layerTable, 1);

    auto* propertyBox = new QGroupBox(tr("Properties"), this);
    auto* propertyLayout = new QVBoxLayout(propertyBox);
    propertyLayout->addWidget(m_properties);

    auto* panels = new QSplitter(Qt::Horizontal, this);
    panels->addWidget(layerBox);
    panels->addWidget(propertyBox);
    panels->setStretchFactor(0, 3);
    panels->setStretchFactor(1, 2);
    // The layer list wide enough for its columns at the window's first size.
    panels->setSizes({680, 400});
    auto* whole = new QSplitter(Qt::Vertical, this);
    whole->addWidget(panels);
    whole->addWidget(m_commandLine);
    whole->setStretchFactor(0, 4);
    whole->setStretchFactor(1, 1);
    whole->setSizes({540, 140});
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(whole);

    connect(m_timer, &QTimer::timeout, this, &KyPalWindow::refreshStep);
    m_timer->start(kRefreshInterval);
    m_commandLine->showNewLines();
}

KyPalWindow::~KyPalWindow() {
    m_timer->stop();
    // The views go before the models they show; the models before the data
    // item layer stops, which the owner of the window does after it.
    delete m_layerTable;
    delete m_currentLayer;
    delete m_properties;
    delete m_layers;
}

void KyPalWindow::refreshStep() {
    // The host runs what was typed or written, as it does when idle; its
    // commands ask for passes that the throttle may hold back, so the step
    // ends with a pass of its own: the palette shows the drawing as it is.
    m_host.idle();
    KyDiManager::refresh();
    m_commandLine->showNewLines();
    m_currentLayer->showCurrent();
    m_properties->followSelection();
}
