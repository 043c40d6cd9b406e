#pragma once

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

#include <ovk/core/export.h>

#include <memory>

namespace Qtitan {

class RibbonBar;
class RibbonGroup;
class RibbonPagePrivate;

/// A page of the ribbon: a tab and, while it is current, its groups.
///
/// setVisible shows and hides the page with its tab. isHidden() tells what was set; isVisible() is
/// true for the current page only.
class OVK_EXPORT RibbonPage : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
public:
    /// A page that RibbonBar::insertPage will put into the bar. Until then it is a hidden child of
    /// the bar; with no bar it is the caller's.
    explicit RibbonPage(RibbonBar* bar = nullptr, const QString& title = QString());
    ~RibbonPage() override;

    /// The text of the tab. A single "&" makes the next letter a mnemonic, "&&" shows one.
    QString title() const;
    void setTitle(const QString& title);

    /// Appends a new group. The page owns it.
    RibbonGroup* addGroup(const QString& title);
    /// Inserts a new group; an index below 0 or past the end appends.
    RibbonGroup* insertGroup(int index, const QString& title);
    /// Puts a group into the page and takes ownership; an index below 0 or past the end appends. A
    /// group of this page moves to the index. Null is ignored.
    void insertGroup(int index, RibbonGroup* group);
    /// Takes a group out of the page, hidden and without a parent: it is the caller's from now on. A
    /// group of another page, or null, is ignored.
    void removeGroup(RibbonGroup* group);
    /// Deletes all groups.
    void clearGroups();

    /// All groups from the first to the last, hidden ones included.
    QList<RibbonGroup*> groups() const;
    int groupCount() const;
    /// The group at an index, null when out of range.
    RibbonGroup* getGroup(int index) const;
    /// The index of a group, -1 when it is not in the page.
    int indexOfGroup(const RibbonGroup* group) const;

    /// The bar that shows the page, null when it is in none.
    RibbonBar* ribbonBar() const;

    /// The page belongs to a context: its tab carries the colour, and tabs that follow each other
    /// and share colour and title have the title above them. An invalid colour ends that.
    void setContext(const QString& contextTitle, const QColor& color);
    QString contextTitle() const;
    QColor contextColor() const;
    bool isContextual() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void titleChanged(const QString& title);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class RibbonPagePrivate;
    std::unique_ptr<RibbonPagePrivate> d;
};

} // namespace Qtitan
