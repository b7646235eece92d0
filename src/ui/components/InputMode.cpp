#include "ui/components/InputMode.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace loom
{

namespace
{

/// Holding Ctrl to click is not typing.
bool isModifier(int key)
{
    switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
        return true;
    default:
        return false;
    }
}

} // namespace

InputMode::InputMode(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool InputMode::eventFilter(QObject* watched, QEvent* event)
{
    // Every event of the application passes here: the type alone decides in nearly all cases.
    switch (event->type()) {
    case QEvent::KeyPress:
        switch (const int key = static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            setKeyboard(true);
            Q_EMIT acted();
            Q_EMIT tabPressed();
            break;
        default:
            if (!isModifier(key)) {
                setKeyboard(true);
                Q_EMIT acted();
            }
            break;
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        setKeyboard(false);
        Q_EMIT acted();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void InputMode::setKeyboard(bool keyboard)
{
    if (m_keyboard == keyboard)
        return;
    m_keyboard = keyboard;
    Q_EMIT keyboardChanged();
}

} // namespace loom
