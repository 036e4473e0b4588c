#pragma once

// The pictures of the shared controls, built into this static library: a static library's
// resources are registered only when someone asks for them.
namespace WidgetResources {
void ensureLoaded();
}
