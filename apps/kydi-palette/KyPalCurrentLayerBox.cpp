#include "KyPalCurrentLayerBox.h"

#include "kydiqt/KyDiQtCollectionModel.h"

KyPalCurrentLayerBox::KyPalCurrentLayerBox(KyDiQtCollectionModel* layers, QWidget* parent)
    : QComboBox(parent), m_layers(layers) {
    setModel(layers);
    setModelColumn(0);
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setToolTip(tr("The current layer"));
    connect(layers, &KyDiQtCollectionModel::currentRowChanged, this,
            &KyPalCurrentLayerBox::showCurrent);
    // A new list (another drawing in front) or rows coming and going move
    // the box's own index; the current row is shown again.
    connect(layers, &QAbstractItemModel::modelReset, this, &KyPalCurrentLayerBox::showCurrent);
    connect(layers, &QAbstractItemModel::rowsInserted, this, &KyPalCurrentLayerBox::showCurrent);
    connect(layers, &QAbstractItemModel::rowsRemoved, this, &KyPalCurrentLayerBox::showCurrent);
    // Only a choice of the user goes to the host: `activated` is not raised
    // when the box follows the model.
    connect(this, &QComboBox::activated, layers, &KyDiQtCollectionModel::setCurrentRow);
    showCurrent();
}

void KyPalCurrentLayerBox::showCurrent() {
    const int row = m_layers->currentRow();
    if (currentIndex() != row) {
        setCurrentIndex(row);
    }
}
