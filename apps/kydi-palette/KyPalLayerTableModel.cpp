#include "KyPalLayerTableModel.h"

#include <QBrush>
#include <QColor>

#include "KyPalSwatch.h"
#include "KyRefTransparencyText.h"
#include "kydiqt/KyDiQtCollectionModel.h"
#include "kydiqt/KyDiQtValue.h"

namespace {

// The marker of the current layer: a check mark.
const QString kCurrentMark = QStringLiteral("\u2713");

QVariant inverted(const QVariant& state) {
    if (!state.isValid()) {
        return state;
    }
    return static_cast<int>(state.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

}  // namespace

QStringList KyPalLayerTableModel::columnProperties() {
    return {"Current",          "IsOff",      "IsFrozen",    "IsLocked", "Color",
            "LinetypeObjectId", "LineWeight", "Transparency"};
}

KyPalLayerTableModel::KyPalLayerTableModel(QObject* parent) : QIdentityProxyModel(parent) {}

bool KyPalLayerTableModel::isFlag(const QModelIndex& index) const {
    return index.column() != CurrentColumn &&
           QIdentityProxyModel::data(index, Qt::CheckStateRole).isValid();
}

QVariant KyPalLayerTableModel::percent(const QModelIndex& index) const {
    const QVariant value = QIdentityProxyModel::data(index, Qt::EditRole);
    if (value.metaType() != QMetaType::fromType<KyCmTransparency>() ||
        !value.value<KyCmTransparency>().isByAlpha()) {
        return QVariant();
    }
    return KyRefTransparencyText::percentOf(value.value<KyCmTransparency>().alpha());
}

QVariant KyPalLayerTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) {
        return QVariant();
    }
    if (index.column() == CurrentColumn) {
        const bool current =
            index.siblingAtColumn(NameColumn).data(KyDiQtCollectionModel::CurrentItemRole).toBool();
        switch (role) {
            case Qt::DisplayRole:
                return current ? kCurrentMark : QString();
            case Qt::ToolTipRole:
                return current ? tr("Current layer") : tr("Double-click to make current");
            case Qt::TextAlignmentRole:
                return static_cast<int>(Qt::AlignCenter);
            case Qt::ForegroundRole:
                return QBrush(QColor(0, 140, 60));
            case KyDiQtCollectionModel::CurrentItemRole:
                return current;
            default:
                return QVariant();
        }
    }
    if (role == Qt::CheckStateRole && index.column() == OnColumn) {
        return inverted(QIdentityProxyModel::data(index, role));
    }
    // A flag's text ("Yes", "No") would only repeat its check box.
    if ((role == Qt::DisplayRole || role == Qt::EditRole) && isFlag(index)) {
        return QVariant();
    }
    if (role == Qt::ToolTipRole && index.column() == ColorColumn) {
        return QIdentityProxyModel::data(index, Qt::DisplayRole);
    }
    if (role == Qt::DecorationRole && index.column() == ColorColumn) {
        const QVariant color = QIdentityProxyModel::data(index, role);
        return color.canConvert<QColor>() ? QVariant(KyPalSwatch::icon(color.value<QColor>()))
                                          : color;
    }
    if ((role == Qt::DisplayRole || role == Qt::EditRole) && index.column() == TransparencyColumn) {
        if (const QVariant shown = percent(index); shown.isValid()) {
            return role == Qt::DisplayRole ? QVariant(shown.toString()) : shown;
        }
    }
    return QIdentityProxyModel::data(index, role);
}

bool KyPalLayerTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() == CurrentColumn) {
        return false;
    }
    if (isFlag(index)) {
        if (role != Qt::CheckStateRole) {
            return false;
        }
        return QIdentityProxyModel::setData(
            index, index.column() == OnColumn ? inverted(value) : value, role);
    }
    if (role == Qt::EditRole && index.column() == TransparencyColumn &&
        value.metaType() == QMetaType::fromType<int>()) {
        const int written = value.toInt();
        if (written < 0 || written > KyRefTransparencyText::kMaximumPercent) {
            return false;
        }
        return QIdentityProxyModel::setData(
            index, QVariant::fromValue(KyCmTransparency(KyRefTransparencyText::alphaOf(written))),
            role);
    }
    return QIdentityProxyModel::setData(index, value, role);
}

Qt::ItemFlags KyPalLayerTableModel::flags(const QModelIndex& index) const {
    if (!index.isValid()) {
        return QIdentityProxyModel::flags(index);
    }
    if (index.column() == CurrentColumn) {
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    }
    Qt::ItemFlags flags = QIdentityProxyModel::flags(index);
    if (isFlag(index)) {
        flags &= ~Qt::ItemIsEditable;
    }
    return flags;
}

QVariant KyPalLayerTableModel::headerData(int section, Qt::Orientation orientation,
                                          int role) const {
    if (orientation == Qt::Horizontal && (role == Qt::DisplayRole || role == Qt::ToolTipRole)) {
        switch (section) {
            case CurrentColumn:
                return role == Qt::DisplayRole ? tr("Current") : tr("The current layer");
            case OnColumn:
                return role == Qt::DisplayRole ? tr("On") : tr("The layer is shown");
            default:
                break;
        }
    }
    return QIdentityProxyModel::headerData(section, orientation, role);
}
