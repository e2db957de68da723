#include "ui/accessibility.h"

#include "ui/die_cell.h"
#include "ui/time_bar.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QWidget>

namespace griglione {
namespace {

constexpr auto kAnnouncement = "announcement";
constexpr auto kWholeText = "griglioneWholeText";
constexpr auto kLink = "griglioneLink";
constexpr auto kDecoration = "griglioneDecoration";

// A die is a button: its default action is the left button, its menu action the right one.
class DieInterface final : public QAccessibleWidget {
public:
    explicit DieInterface(DieCell* die) : QAccessibleWidget(die, QAccessible::Button) {}

    QStringList actionNames() const override {
        return {pressAction(), showMenuAction(), setFocusAction()};
    }
    void doAction(const QString& action) override {
        auto* die = static_cast<DieCell*>(widget());
        if (action == pressAction()) emit die->pressed(die->index(), 1);
        if (action == showMenuAction()) emit die->pressed(die->index(), 2);
        if (action == setFocusAction()) die->setFocus(Qt::OtherFocusReason);
    }
};

// The time bar is read as the share of the match gone by, in hundredths.
class TimeBarInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit TimeBarInterface(TimeBar* bar) : QAccessibleWidget(bar, QAccessible::ProgressBar) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Value) return QStringLiteral("%1%").arg(currentValue().toInt());
        return QAccessibleWidget::text(t);
    }
    QVariant currentValue() const override {
        const auto* bar = static_cast<const TimeBar*>(widget());
        return bar->innerWidth() > 0 ? bar->filledWidth() * 100 / bar->innerWidth() : 0;
    }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return 100; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }
};

// The announcements: a notification that shows afresh with every message, which is what makes
// a screen reader speak it.
class AnnouncementInterface final : public QAccessibleWidget {
public:
    explicit AnnouncementInterface(QWidget* w) : QAccessibleWidget(w, QAccessible::Notification) {}
};

// A widget read as one text: its name is the text and its parts are not offered.
class WholeTextInterface final : public QAccessibleWidget {
public:
    explicit WholeTextInterface(QWidget* w) : QAccessibleWidget(w, QAccessible::StaticText) {}

    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) return widget()->property(kWholeText).toString();
        return QAccessibleWidget::text(t);
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
};

// A label that opens something: a link, named by its text.
class LinkInterface final : public QAccessibleWidget {
public:
    explicit LinkInterface(QWidget* w) : QAccessibleWidget(w, QAccessible::Link) {}

    QString text(QAccessible::Text t) const override {
        QString own = QAccessibleWidget::text(t);
        if (t == QAccessible::Name && own.isEmpty())
            if (auto* label = qobject_cast<const QLabel*>(widget())) return label->text();
        return own;
    }
};

// A decoration: there, but not shown to a reader, which passes over what is not showing.
class DecorationInterface final : public QAccessibleWidget {
public:
    explicit DecorationInterface(QWidget* w) : QAccessibleWidget(w, QAccessible::Border) {}

    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.invisible = true;
        return s;
    }
};

QAccessibleInterface* factory(const QString& className, QObject* object) {
    if (object && object->isWidgetType() && object->property(kDecoration).toBool())
        return new DecorationInterface(static_cast<QWidget*>(object));
    if (object && object->isWidgetType() && object->property(kWholeText).isValid())
        return new WholeTextInterface(static_cast<QWidget*>(object));
    if (object && object->isWidgetType() && object->property(kLink).toBool())
        return new LinkInterface(static_cast<QWidget*>(object));
    if (className == QLatin1String("griglione::DieCell"))
        return new DieInterface(static_cast<DieCell*>(object));
    if (className == QLatin1String("griglione::TimeBar"))
        return new TimeBarInterface(static_cast<TimeBar*>(object));
    if (object && object->isWidgetType() && object->objectName() == QLatin1String(kAnnouncement))
        return new AnnouncementInterface(static_cast<QWidget*>(object));
    return nullptr;
}

// Names the lists' scroll bars by their direction as each is made ready to show: Qt leaves
// them nameless, and a reader would announce a bare "scroll bar".
class ScrollBarNames final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Polish)
            if (auto* bar = qobject_cast<QScrollBar*>(watched);
                bar && bar->accessibleName().isEmpty())
                bar->setAccessibleName(
                    bar->orientation() == Qt::Vertical
                        ? QCoreApplication::translate("Accessibility", "Scorrimento verticale")
                        : QCoreApplication::translate("Accessibility", "Scorrimento orizzontale"));
        return false;
    }
};

} // namespace

void installAccessibility() {
    static const bool installed = [] {
        QAccessible::installFactory(factory);
        qApp->installEventFilter(new ScrollBarNames(qApp));
        return true;
    }();
    (void)installed;
}

void announce(QWidget* window, const QString& text) {
    installAccessibility();
    if (!window) return;
    auto* notice = window->findChild<QWidget*>(kAnnouncement, Qt::FindDirectChildrenOnly);
    if (!notice) {
        // Out of sight in a corner, yet shown: readers ignore what is hidden.
        notice = new QWidget(window);
        notice->setObjectName(kAnnouncement);
        notice->setAttribute(Qt::WA_TransparentForMouseEvents);
        notice->setGeometry(0, 0, 1, 1);
    }
    notice->hide();
    notice->setAccessibleName(text);
    notice->show();
    notice->lower();
}

} // namespace griglione

namespace griglione {
namespace {

// An interface made before the widget was marked keeps its old kind: it is forgotten, so the
// next question makes one of the new kind.
template <typename Kind> void forgetInterface(QWidget* widget) {
    installAccessibility();
    if (QAccessibleInterface* made = QAccessible::queryAccessibleInterface(widget);
        made && !dynamic_cast<Kind*>(made))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(made));
}

} // namespace

void readWhole(QWidget* widget, const QString& text) {
    widget->setProperty(kWholeText, text);
    forgetInterface<WholeTextInterface>(widget);
    QAccessibleEvent changed(widget, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&changed);
}

void markDecoration(QWidget* widget) {
    widget->setProperty(kDecoration, true);
    forgetInterface<DecorationInterface>(widget);
}

void presentAsLink(QWidget* label) {
    label->setProperty(kLink, true);
    forgetInterface<LinkInterface>(label);
}

} // namespace griglione
