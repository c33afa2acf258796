#include "platform/controls/ListKeys.h"

#include <QKeyEvent>

namespace {

class FirstDown : public QObject
{
public:
    explicit FirstDown(QAbstractItemView &list) : QObject(&list), m_list(list) { list.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        const QModelIndex framed = m_list.currentIndex();
        QItemSelectionModel &selection = *m_list.selectionModel();
        if (key->key() != Qt::Key_Down || !plain || !framed.isValid() || selection.hasSelection())
            return false;
        selection.select(framed, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        return true;
    }

private:
    QAbstractItemView &m_list;
};

} // namespace

void SelectWithFirstDown(QAbstractItemView &list) { new FirstDown(list); }
