// KyPalCurrentLayerBox: the current layer as a list to choose from, over the
// layers' collection model (its name column). The box shows what the model
// reports current; a choice asks the model to make the layer current, and
// the box shows it once the host has made it so (or shows the current one
// again when the host refused).
#pragma once

#include <QComboBox>

class KyDiQtCollectionModel;

class KyPalCurrentLayerBox : public QComboBox {
    Q_OBJECT
public:
    explicit KyPalCurrentLayerBox(KyDiQtCollectionModel* layers, QWidget* parent = nullptr);

public Q_SLOTS:
    // Shows the row the model reports current.
    void showCurrent();

private:
    KyDiQtCollectionModel* m_layers;
};
