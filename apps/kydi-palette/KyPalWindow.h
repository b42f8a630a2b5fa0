// KyPalWindow: the layer palette over a reference host whose data item layer
// is started. The layer list with its filter and the current layer on the
// left, the property panel on the right, the command line below.
//
// The palette follows the drawing through refresh passes: every 100 ms the
// host runs what is queued (the commands typed, the writes of the panels)
// and a pass tells the models what changed.
//
// The window owns the models over the layer's collections and contexts:
// destroy it before the data item layer stops.
#pragma once

#include <QWidget>

class KyDiQtCollectionModel;
class KyPalCommandLine;
class KyPalCurrentLayerBox;
class KyPalLayerTable;
class KyPalPropertyPanel;
class KyRefHost;
class QTimer;

class KyPalWindow : public QWidget {
    Q_OBJECT
public:
    // The time between two refresh steps, in milliseconds.
    static constexpr int kRefreshInterval = 100;

    explicit KyPalWindow(KyRefHost& host, QWidget* parent = nullptr);
    ~KyPalWindow() override;

    KyDiQtCollectionModel* layers() const { return m_layers; }
    KyPalLayerTable* layerTable() const { return m_layerTable; }
    KyPalCurrentLayerBox* currentLayer() const { return m_currentLayer; }
    KyPalPropertyPanel* properties() const { return m_properties; }
    KyPalCommandLine* commandLine() const { return m_commandLine; }

public Q_SLOTS:
    // One step: the host runs what is queued, a refresh pass reports the
    // changes, and the panels show them.
    void refreshStep();

private:
    KyRefHost& m_host;
    KyDiQtCollectionModel* m_layers;
    KyPalLayerTable* m_layerTable;
    KyPalCurrentLayerBox* m_currentLayer;
    KyPalPropertyPanel* m_properties;
    KyPalCommandLine* m_commandLine;
    QTimer* m_timer;
};
