#include "KyPalColorDelegate.h"

#include <QColorDialog>
#include <QComboBox>

#include "KyPalSwatch.h"
#include "kydiqt/KyDiQtValue.h"

namespace {

// The data of the entry that opens the colour dialog.
constexpr int kMoreColors = -1;

bool isMoreColors(const QVariant& entry) {
    return entry.metaType() == QMetaType::fromType<int>() && entry.toInt() == kMoreColors;
}

bool isCmColor(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<KyCmColor>();
}

// Adds `color` as an entry, with the name and swatch the platform gives it.
void addColor(QComboBox& box, const KyCmColor& color) {
    const KyRxValue value(color);
    box.addItem(KyPalSwatch::icon(KyDiQtValue::swatch(value)), KyDiQtValue::text(value),
                QVariant::fromValue(color));
}

KyCmColor indexColor(unsigned short index) {
    KyCmColor color;
    color.setColorIndex(index);
    return color;
}

int entryOf(const QComboBox& box, const KyCmColor& color) {
    for (int i = 0; i < box.count(); ++i) {
        const QVariant entry = box.itemData(i);
        if (isCmColor(entry) && entry.value<KyCmColor>() == color) {
            return i;
        }
    }
    return -1;
}

}  // namespace

KyPalColorDelegate::KyPalColorDelegate(bool byLayerChoices, QObject* parent)
    : QStyledItemDelegate(parent), m_byLayerChoices(byLayerChoices) {}

bool KyPalColorDelegate::isColor(const QModelIndex& index) {
    return isCmColor(index.data(Qt::EditRole));
}

QWidget* KyPalColorDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                          const QModelIndex& index) const {
    if (!isColor(index)) {
        return QStyledItemDelegate::createEditor(parent, option, index);
    }
    auto* box = new QComboBox(parent);
    if (m_byLayerChoices) {
        KyCmColor byLayer;
        byLayer.setColorMethod(KyCmColor::kByLayer);
        addColor(*box, byLayer);
        KyCmColor byBlock;
        byBlock.setColorMethod(KyCmColor::kByBlock);
        addColor(*box, byBlock);
    }
    for (unsigned short aci = 1; aci <= 7; ++aci) {
        addColor(*box, indexColor(aci));
    }
    box->addItem(tr("More colours..."), kMoreColors);
    // A choice is written at once: the list closes as a click picks. The
    // delegate's signals are not const; the editor is made in a const call.
    auto* self = const_cast<KyPalColorDelegate*>(this);
    connect(box, &QComboBox::activated, self, [self, box](int entry) {
        if (isMoreColors(box->itemData(entry))) {
            const QColor chosen = QColorDialog::getColor(Qt::white, box, tr("Colour"));
            if (!chosen.isValid()) {
                Q_EMIT self->closeEditor(box, QAbstractItemDelegate::RevertModelCache);
                return;
            }
            box->insertItem(entry, KyPalSwatch::icon(chosen), chosen.name(), chosen);
            box->setCurrentIndex(entry);
        }
        Q_EMIT self->commitData(box);
        Q_EMIT self->closeEditor(box);
    });
    return box;
}

void KyPalColorDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    auto* box = qobject_cast<QComboBox*>(editor);
    if (box == nullptr || !isColor(index)) {
        QStyledItemDelegate::setEditorData(editor, index);
        return;
    }
    const KyCmColor current = index.data(Qt::EditRole).value<KyCmColor>();
    int entry = entryOf(*box, current);
    if (entry < 0) {
        // A colour off the list (a true colour, a book colour) is kept as
        // its own entry, first, so that choosing it changes nothing.
        const KyRxValue value(current);
        box->insertItem(0, KyPalSwatch::icon(KyDiQtValue::swatch(value)), KyDiQtValue::text(value),
                        QVariant::fromValue(current));
        entry = 0;
    }
    box->setCurrentIndex(entry);
}

void KyPalColorDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                      const QModelIndex& index) const {
    auto* box = qobject_cast<QComboBox*>(editor);
    if (box == nullptr || !isColor(index)) {
        QStyledItemDelegate::setModelData(editor, model, index);
        return;
    }
    // The colour the cell holds already is not written again.
    const QVariant chosen = box->currentData();
    const bool unchanged = isCmColor(chosen) &&
                           chosen.value<KyCmColor>() == index.data(Qt::EditRole).value<KyCmColor>();
    if (chosen.isValid() && !isMoreColors(chosen) && !unchanged) {
        model->setData(index, chosen);
    }
}
