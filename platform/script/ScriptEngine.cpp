// SPDX-License-Identifier: MIT
// The loadable script engine behind platform::ScriptContext.
#include "platform/ScriptContext.h"

#include <QJSEngine>

namespace {

class EngineContext final : public platform::ScriptContext
{
public:
    void evaluate(const QString &script) override { m_engine.evaluate(script); }

    QVariantMap call(const QString &function, const QList<double> &numbers) override
    {
        const QJSValueList arguments(numbers.begin(), numbers.end());
        const QJSValue result = m_engine.globalObject().property(function).call(arguments);
        QVariantMap properties = result.isError() ? QVariantMap() : result.toVariant().toMap();
        // The engine itself waits until calls have left most of a megabyte behind. A clock calls it
        // once a day, so its memory would grow for months.
        m_engine.collectGarbage();
        return properties;
    }

private:
    QJSEngine m_engine;
};

} // namespace

extern "C" Q_DECL_EXPORT platform::ScriptContext *makeScriptContext()
{
    return new EngineContext;
}
