#pragma once
#include "shop/ShopSettings.h"

class QWidget;

/// Carries the settings to the controls of the same names and back.
namespace SettingsControls {

void show(const ShopSettings &settings, QWidget &screen);
/// The texts of several lines come back with CR LF, as the pages and text files have them.
void take(ShopSettings &settings, const QWidget &screen);

} // namespace SettingsControls
