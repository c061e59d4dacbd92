// A plugin for the end-to-end tests alone: it tells what stands on the screen and where, so that a test finds a control
// by its name and clicks there with a real mouse. It changes nothing in the program. The toolkit loads it when
// QT_QPA_GENERIC_PLUGINS names it; whatever arrives at the socket LOCATOR_SOCKET is answered with the present state as
// one line of JSON. The help answers at the same place with the ending ".help".
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QTextEdit>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int MostRows = 1000;

/// In pixels of the screen, which are finer than the toolkit's where it scales.
QJsonArray OnScreen(const QWidget &widget, const QRect &rect)
{
    const double scale = widget.devicePixelRatio();
    const QPoint corner = widget.mapToGlobal(rect.topLeft());
    return {corner.x() * scale, corner.y() * scale, rect.width() * scale, rect.height() * scale};
}

/// Whether a click in the middle of rect arrives at the widget: nothing covers it, and it is in view.
bool CanBeHit(const QWidget &widget, const QRect &rect)
{
    const QWidget *hit = QApplication::widgetAt(widget.mapToGlobal(rect.center()));
    return hit && (hit == &widget || widget.isAncestorOf(hit));
}

QJsonArray RowsOf(const QAbstractItemView &view)
{
    const QAbstractItemModel &model = *view.model();
    QJsonArray rows;
    for (int row = 0; row < qMin(model.rowCount(), MostRows); ++row) {
        QJsonArray cells;
        QRect rect;
        for (int column = 0; column < model.columnCount(); ++column) {
            const QModelIndex index = model.index(row, column);
            cells += index.data().toString();
            rect |= view.visualRect(index);
        }
        const QModelIndex first = model.index(row, 0);
        rows += QJsonObject{{u"cells"_s, cells},
                            {u"rect"_s, OnScreen(*view.viewport(), rect)},
                            {u"hit"_s, CanBeHit(*view.viewport(), rect)},
                            {u"selected"_s, view.selectionModel()->isSelected(first)},
                            {u"current"_s, view.currentIndex().row() == row}};
    }
    return rows;
}

QString TextOf(const QWidget &widget)
{
    if (auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    if (auto *field = qobject_cast<const QLineEdit *>(&widget))
        return field->text();
    if (auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (auto *page = qobject_cast<const QTextEdit *>(&widget))
        return page->toPlainText();
    return {};
}

QJsonObject Control(const QWidget &widget)
{
    QJsonObject control{{u"class"_s, QString::fromLatin1(widget.metaObject()->className())},
                        {u"rect"_s, OnScreen(widget, widget.rect())},
                        {u"visible"_s, widget.isVisible()},
                        {u"hit"_s, widget.isVisible() && CanBeHit(widget, widget.rect())},
                        {u"enabled"_s, widget.isEnabled()},
                        {u"text"_s, TextOf(widget)}};
    if (auto *button = qobject_cast<const QAbstractButton *>(&widget); button && button->isCheckable())
        control[u"checked"_s] = button->isChecked();
    if (auto *view = qobject_cast<const QAbstractItemView *>(&widget); view && view->model())
        control[u"rows"_s] = RowsOf(*view);
    return control;
}

/// The named controls of a window. What the toolkit makes for itself has names that begin with "qt_".
QJsonObject ControlsOf(const QWidget &window)
{
    QJsonObject controls;
    for (const QWidget *widget : window.findChildren<QWidget *>())
        if (const QString name = widget->objectName(); !name.isEmpty() && !name.startsWith("qt_"_L1))
            controls[name] = Control(*widget);
    return controls;
}

/// Entries of a menu or of the bar that can be clicked now, by name; a submenu goes by its own.
template <class Menu>
void AddEntries(const Menu &menu, QJsonObject &entries)
{
    for (QAction *action : menu.actions()) {
        const QString name =
            action->objectName().isEmpty() && action->menu() ? action->menu()->objectName() : action->objectName();
        if (!name.isEmpty() && action->isVisible() && !action->isSeparator())
            entries[name] = QJsonObject{{u"rect"_s, OnScreen(menu, menu.actionGeometry(action))},
                                        {u"enabled"_s, action->isEnabled()},
                                        {u"checked"_s, action->isChecked()},
                                        {u"text"_s, action->text()}};
    }
}

QJsonObject Box(const QMessageBox &box)
{
    QJsonObject buttons;
    for (const QAbstractButton *button : box.buttons())
        buttons[button->text().remove(u'&')] = Control(*button);
    return {{u"title"_s, box.windowTitle()},
            {u"text"_s, box.text()},
            {u"icon"_s, int(box.icon())},
            {u"active"_s, box.isActiveWindow()},
            {u"buttons"_s, buttons}};
}

QJsonObject Window(const QWidget &window)
{
    return {{u"title"_s, window.windowTitle()},
            {u"id"_s, qint64(window.winId())},
            {u"active"_s, window.isActiveWindow()},
            {u"rect"_s, OnScreen(window, window.rect())},
            {u"controls"_s, ControlsOf(window)}};
}

QJsonObject WhatStandsOnTheScreen()
{
    QJsonObject windows, entries;
    QJsonArray boxes;
    for (const QWidget *top : QApplication::topLevelWidgets()) {
        if (!top->isVisible() || !top->windowHandle() || !top->windowHandle()->isExposed())
            continue;
        if (auto *menu = qobject_cast<const QMenu *>(top))
            AddEntries(*menu, entries);
        else if (auto *box = qobject_cast<const QMessageBox *>(top))
            boxes += Box(*box);
        else if (!top->objectName().isEmpty())
            windows[top->objectName()] = Window(*top);
        for (const QMenuBar *bar : top->findChildren<QMenuBar *>())
            AddEntries(*bar, entries);
    }
    const QWidget *focus = QGuiApplication::focusWindow() ? QApplication::focusWidget() : nullptr;
    return {{u"windows"_s, windows},
            {u"entries"_s, entries},
            {u"boxes"_s, boxes},
            {u"focus"_s, focus ? focus->window()->objectName() + u'.' + focus->objectName() : QString()}};
}

class Locator : public QObject
{
    Q_OBJECT
public:
    explicit Locator(const QString &socket)
    {
        QLocalServer::removeServer(socket); // of a help that has been closed
        connect(&m_server, &QLocalServer::newConnection, this, &Locator::Answer);
        if (!m_server.listen(socket))
            qWarning("locator: cannot listen at %s", qPrintable(socket));
    }

private:
    void Answer()
    {
        while (QLocalSocket *asker = m_server.nextPendingConnection()) {
            connect(asker, &QLocalSocket::disconnected, asker, &QObject::deleteLater);
            connect(asker, &QLocalSocket::readyRead, asker, [asker] {
                asker->readAll();
                asker->write(QJsonDocument(WhatStandsOnTheScreen()).toJson(QJsonDocument::Compact) + '\n');
                asker->disconnectFromServer(); // once all is written
            });
        }
    }

    QLocalServer m_server;
};

} // namespace

class LocatorPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "locator.json")
public:
    QObject *create(const QString &, const QString &) override
    {
        // The help is a program of its own, which inherits what the tests tell the program that starts it.
        const bool isHelp = QCoreApplication::applicationName().endsWith(u"Help"_s);
        return new Locator(qEnvironmentVariable("LOCATOR_SOCKET") + (isHelp ? u".help"_s : QString()));
    }
};

#include "locator.moc"
