#pragma once
#include "shop/RunReport.h"
#include "shop/ShopCheck.h"

class QListWidget;
class QListWidgetItem;

/// The list of what a run passed over and of what a check found, one line each.
namespace CheckPanel {

void fill(QListWidget &list, const RunReport &report, const std::vector<Finding> &findings,
          const Localisation &localisation);
/// Name of the control that mends what a line tells; empty when it is elsewhere.
QString controlOf(const QListWidgetItem &line);
/// The row in that control, where it is a grid, else 0.
int rowOf(const QListWidgetItem &line);

} // namespace CheckPanel
