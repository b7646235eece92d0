#include "kit/WebViewDriver.h"

#include "support/Running.h"

#include <QFile>
#include <QJSEngine>
#include <QQmlEngine>

namespace loom
{

QQuickItem* WebViewDriver::view() const
{
    const QList<QQuickItem*> all = m_window.findAll(QString());
    const auto found = std::ranges::find_if(all, [](const QQuickItem* item) {
        return item->inherits("QQuickWebEngineView") && !item->property("loading").toBool();
    });
    return found == all.end() ? nullptr : *found;
}

QVariant WebViewDriver::evaluate(const QString& script) const
{
    QJSValue answer;
    QPointer<QQuickItem> asked; // a view that loads something else meanwhile does not answer
    waitUntil(
        [&] {
            if (answer.isObject() && answer.property(QStringLiteral("isThere")).toBool())
                return true;
            QQuickItem* const shown = view();
            if (shown && shown != asked) {
                QQmlEngine& engine = *qmlEngine(shown);
                answer = engine.newObject();
                const QString keep =
                    QStringLiteral("(answer => value => { answer.value = value; answer.isThere = true })");
                const QJSValue callback = engine.evaluate(keep).call({answer});
                QMetaObject::invokeMethod(shown, "runJavaScript", Q_ARG(QString, script), Q_ARG(QJSValue, callback));
            }
            asked = shown;
            return false;
        },
        "the page answers");
    return answer.property(QStringLiteral("value")).toVariant();
}

void WebViewDriver::awaitTrue(const QString& script) const
{
    waitUntil([&] { return evaluate(script).toBool(); }, script.toStdString());
}

void WebViewDriver::click(const QString& selector) const
{
    const QString element = QStringLiteral("document.querySelector('%1')").arg(selector);
    awaitTrue(QStringLiteral("%1 !== null").arg(element));
    evaluate(QStringLiteral("%1.scrollIntoView({block: 'center'})").arg(element));
    const QVariantMap place =
        evaluate(QStringLiteral("(box => ({x: box.x + box.width / 2, y: box.y + box.height / 2}))(%1"
                                ".getClientRects()[0])")
                     .arg(element))
            .toMap();
    const QPointF middle(place.value(QStringLiteral("x")).toDouble(), place.value(QStringLiteral("y")).toDouble());
    m_window.clickAt(view()->mapToScene(middle));
}

void WebViewDriver::clickLink(const QString& address) const
{
    click(QStringLiteral("main a[href=\"%1\"], a[href=\"%1\"]").arg(address));
}

bool isEngineMapped()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("WebEngineCore");
}

} // namespace loom
