#pragma once

class QApplication;

namespace velmora
{

/// The look of all windows: one style and one calm, light palette, whatever the desktop's. Fonts stay the
/// desktop's own. To be called once, before the first window.
void appliqueApparence(QApplication &application);

} // namespace velmora
