// SPDX-License-Identifier: MIT
#include "platform/ScriptContext.h"

#include "platform/Bundle.h"

#include <QLibrary>

using namespace Qt::StringLiterals;

namespace platform {

std::unique_ptr<ScriptContext> makeScriptContext(const Bundle &bundle)
{
    // The engine is never unloaded: views that own contexts come and go with the screens.
    QLibrary engine(bundle.plugInPath(u"script-engine.so"_s));
    using Maker = ScriptContext *(*)();
    const auto make = reinterpret_cast<Maker>(engine.resolve("makeScriptContext"));
    return std::unique_ptr<ScriptContext>(make ? make() : nullptr);
}

} // namespace platform
