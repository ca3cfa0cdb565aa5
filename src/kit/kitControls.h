#pragma once

namespace zdt {

class SkinLoader;

/// Makes the kit's own controls known to a loader, each under its class name.
void registerKitControls(SkinLoader& loader);

} // namespace zdt
