// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QVariantMap>

#include <memory>

namespace platform {

class Bundle;

/// A script engine with one global object. The engine is a plug-in that is loaded with the first
/// context, so that a program that runs no script does not have it in memory.
class ScriptContext
{
public:
    virtual ~ScriptContext() = default;

    /// Runs \p script in the global scope. What a script did before it failed stays in effect.
    virtual void evaluate(const QString &script) = 0;

    /// The properties of the object that the global function \p function returns for \p numbers;
    /// empty when there is no such function or it fails.
    virtual QVariantMap call(const QString &function, const QList<double> &numbers) = 0;
};

/// A new context, from the engine among the plug-ins of \p bundle; null when that is missing.
/// Needs the application object.
std::unique_ptr<ScriptContext> makeScriptContext(const Bundle &bundle);

} // namespace platform
