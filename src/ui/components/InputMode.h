#pragma once

#include <QObject>
#include <QQmlEngine>

namespace loom
{

/// Whether the shopper last used the keyboard or a pointer. The focus ring shows for the keyboard alone, whichever
/// way an item came by its focus.
class InputMode : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool keyboard READ keyboard NOTIFY keyboardChanged)

public:
    explicit InputMode(QObject* parent = nullptr);

    [[nodiscard]] bool keyboard() const { return m_keyboard; }

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void keyboardChanged();
    /// The shopper moves on by the Tab key, to where is known once the key is dealt with.
    void tabPressed();
    /// The shopper pressed a key or a button.
    void acted();

private:
    void setKeyboard(bool keyboard);

    bool m_keyboard = false;
};

} // namespace loom
