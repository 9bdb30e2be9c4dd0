#pragma once
#include "platform/PrintLayout.h"
#include "shell/Screens.h"

/// What the labels of a product hold. Each template is a layout in the application folder.
namespace Labels {

enum class Template { TwoColumns, WithDescription, ThreeColumns, FourColumns };

QString fileName(Template layout);
/// The fields of a label. A language that the product doesn't have gives no name and no description, so that those of
/// the layout stay; three columns have no reference. Without a price its field is empty.
PrintFields fields(const LabelProduct &product, const QString &sLangue, Template layout, bool withPrice,
                   const QString &currency);

} // namespace Labels
