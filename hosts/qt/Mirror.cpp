#include "qt/Mirror.h"

#include "qt/EventWatch.h"
#include "qt/Texts.h"

namespace k7deval::qt
{

void keepShown(QWidget& view, screen::Widget& model, const Refresh& refresh)
{
    view.setObjectName(toQString(model.Name()));
    model.Changed.Connect(refresh);
    new EventWatch(view, QEvent::PaletteChange, [refresh](const QEvent&) { refresh(); });
    refresh();
}

} // namespace k7deval::qt
