// SPDX-License-Identifier: MIT
#include "desktop/spoken.h"

#include <QAccessibleWidget>

#include "desktop/fields.h"

namespace vanzer::desktop {

namespace {

class SpokenDropDown : public QAccessibleWidget {
  public:
    explicit SpokenDropDown(DropDown& list) : QAccessibleWidget(&list, QAccessible::ComboBox) {}

    [[nodiscard]] QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? list().shownText() : QAccessibleWidget::text(which);
    }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State result = QAccessibleWidget::state();
        result.expandable = true;
        result.hasPopup = true;
        result.editable = list().isEditable();
        return result;
    }
    [[nodiscard]] QStringList actionNames() const override {
        return QStringList{QAccessibleActionInterface::showMenuAction()} + QAccessibleWidget::actionNames();
    }
    void doAction(const QString& action) override {
        if (action == QAccessibleActionInterface::showMenuAction())
            list().showPopup();
        else
            QAccessibleWidget::doAction(action);
    }

  private:
    [[nodiscard]] DropDown& list() const { return *static_cast<DropDown*>(widget()); }
};

/// Makes the accessible interface of a widget. Qt owns the result.
QAccessibleInterface* made(const QString& /*className*/, QObject* object) {
    if (auto* const notice = qobject_cast<Notice*>(object))
        return new QAccessibleWidget(notice, QAccessible::AlertMessage);
    auto* const list = qobject_cast<DropDown*>(object);
    return list == nullptr ? nullptr : new SpokenDropDown(*list);
}

} // namespace

void nameOwnWidgets() {
    static const bool once = (QAccessible::installFactory(made), true);
    static_cast<void>(once);
}

} // namespace vanzer::desktop
