#include "kit/page.h"

#include "kit/lateSignals.h"
#include "kit/layoutError.h"
#include "kit/localisation.h"
#include "kit/notificationNames.h"
#include "kit/textLookup.h"

#include <QVBoxLayout>

namespace zdt {

ZPage::ZPage(Workbench& bench, const QString& layout, QWidget* parent)
    : QWidget(parent)
    , _bench(bench) {
    SkinLoader::Result loaded = bench.layouts().load(layout);
    if (!loaded.widget)
        throw LayoutError(loaded.error);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(loaded.widget.release());
    relabel(this, Text);
    bench.notifications().AddNotifier(*this);
}

ZPage::~ZPage() {
    hearNoChildren(this);
}

void ZPage::Notify(const Notification& message) {
    if (message.name == notify::Notify_ReloadDataMsg)
        reload();
}

} // namespace zdt
