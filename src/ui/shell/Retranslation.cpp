#include "ui/shell/Retranslation.h"

#include <QAbstractItemModel>
#include <QElapsedTimer>
#include <QJSValue>
#include <QMetaProperty>
#include <QQuickItem>
#include <QQuickWindow>

#include <private/qqmlbinding_p.h>
#include <private/qqmldata_p.h>

#include <algorithm>

namespace loom
{

namespace
{

// As long as a slice of what is made is.
constexpr int slice = 4; // milliseconds

/// Whether a text, or something with a text in it, may be the value of a property. Sizes and colours follow of
/// themselves where they depend on one.
bool mayHoldText(QMetaType type)
{
    switch (type.id()) {
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QVariant:
    case QMetaType::QVariantList:
    case QMetaType::QVariantMap:
    case QMetaType::QLocale:
        return true;
    default:
        return type == QMetaType::fromType<QJSValue>();
    }
}

/// Whether a shopper may have typed what an object shows, which its binding knows nothing of.
bool isTypedIn(const QObject& object)
{
    const QVariant readOnly = object.property("readOnly");
    return readOnly.isValid() && !readOnly.toBool();
}

/// Evaluates the bindings of an object that may hold a text.
void evaluateTexts(QObject& object)
{
    const QQmlData* const data = QQmlData::get(&object);
    if (!data || data->wasDeleted(&object))
        return;
    // What is on its way out has lost what its bindings look at.
    const QQmlContextData* const context = data->context ? data->context : data->outerContext;
    if (!context || !context->isValid())
        return;
    const bool keepsText = isTypedIn(object);
    // One may take itself or its neighbours out.
    QVarLengthArray<QQmlAbstractBinding::Ptr, 16> bindings;
    for (QQmlAbstractBinding* binding = data->bindings; binding; binding = binding->nextBinding()) {
        const QMetaProperty property = object.metaObject()->property(binding->targetPropertyIndex().coreIndex());
        if (binding->kind() == QQmlAbstractBinding::QmlBinding && mayHoldText(property.metaType()) &&
            !(keepsText && qstrcmp(property.name(), "text") == 0))
            bindings.append(QQmlAbstractBinding::Ptr(binding));
    }
    const QPointer<QObject> alive(&object);
    for (const QQmlAbstractBinding::Ptr& binding : bindings) {
        if (alive)
            static_cast<QQmlBinding*>(binding.data())->refresh();
    }
}

} // namespace

void Retranslation::holdDirection(const QList<QQuickWindow*>& windows)
{
    for (QQuickWindow* const window : windows)
        m_direction.hold(*window->contentItem());
}

void Retranslation::begin(const QList<QQuickWindow*>& windows)
{
    m_seen.clear();
    m_unseen.clear();
    m_met.clear();
    m_asked.clear();
    for (auto window = windows.crbegin(); window != windows.crend(); ++window)
        enqueue(*window, (*window)->isVisible());
    m_next.start(0, this);
}

void Retranslation::timerEvent(QTimerEvent* /*event*/)
{
    QElapsedTimer spent;
    spent.start();
    while (spent.elapsed() < slice) {
        Waiting& waiting = m_seen.empty() ? m_unseen : m_seen;
        if (waiting.empty()) {
            end();
            return;
        }
        const QPointer<QObject> object = waiting.back();
        waiting.pop_back();
        if (object)
            visit(*object);
    }
}

void Retranslation::end()
{
    m_next.stop();
    m_met.clear();
    m_asked.clear();
    m_direction.letAllGo();
}

void Retranslation::visit(QObject& object)
{
    const QPointer<QObject> alive(&object);
    if (auto* const item = qobject_cast<QQuickItem*>(&object))
        m_direction.letGo(*item);
    if (alive)
        evaluateTexts(object);
    if (!alive)
        return;
    askAgain(&object);
    if (const QVariant model = object.property("model"); model.isValid())
        askAgain(model.value<QObject*>());
    if (!alive)
        return;
    const auto* const item = qobject_cast<const QQuickItem*>(&object);
    const auto* const window = qobject_cast<const QQuickWindow*>(&object);
    const bool isSeen = item ? item->isVisible() : !window || window->isVisible();
    for (QObject* const child : object.children())
        enqueue(child, isSeen);
    // A delegate hangs on no object.
    if (window)
        enqueue(window->contentItem(), isSeen);
    if (item) {
        for (QQuickItem* const child : item->childItems())
            enqueue(child, isSeen && child->isVisible());
    }
}

void Retranslation::enqueue(QObject* object, bool isSeen)
{
    // Models and the like are children too, of the pages that own them.
    if (!object || m_met.contains(object))
        return;
    m_met.insert(object);
    (isSeen ? m_seen : m_unseen).emplace_back(object);
}

void Retranslation::askAgain(QObject* object)
{
    auto* const list = qobject_cast<QAbstractItemModel*>(object);
    if (!list)
        return;
    const bool isNew = !m_asked.contains(list);
    m_asked.insert(list);
    const int count = isNew ? list->rowCount() : 0;
    if (count > 0)
        Q_EMIT list->dataChanged(list->index(0, 0), list->index(count - 1, 0));
}

} // namespace loom
