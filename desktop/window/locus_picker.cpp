#include "desktop/window/locus_picker.h"

#include "core/text.h"
#include "desktop/long_work.h"
#include "desktop/settings.h"
#include "desktop/text.h"
#include "platform/grid/sort_key.h"
#include "platform/store/store.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>
#include <vector>

namespace Tamrivo
{

namespace
{

class LocusPicker : public QDialog
{
public:
    LocusPicker(const QStringList& tags, const QString& title, QWidget* parent)
        : QDialog(parent), m_tags(tags)
    {
        setObjectName("locusPicker");
        setWindowTitle(title);
        m_narrowed.setSourceModel(&m_tags);
        m_narrowed.setFilterCaseSensitivity(Qt::CaseInsensitive);
        auto* filter = new QLineEdit(this);
        m_list = new QListView(this);
        m_list->setObjectName("tags");
        m_list->setModel(&m_narrowed);
        m_list->setUniformItemSizes(true);
        m_list->setAccessibleName("Loci");
        m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
        filter->setObjectName("filter");
        filter->setClearButtonEnabled(true);
        filter->setPlaceholderText("Part of the tag");
        filter->installEventFilter(this);
        auto* label = new QLabel("&Locus tag:", this);
        label->setBuddy(filter);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        m_ok = buttons->button(QDialogButtonBox::Ok);

        auto* layout = new QVBoxLayout(this);
        layout->addWidget(label);
        layout->addWidget(filter);
        layout->addWidget(m_list, 1);
        layout->addWidget(buttons);
        RestorePlace(*this,
                     {64 * fontMetrics().averageCharWidth(), 24 * fontMetrics().lineSpacing()});

        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        connect(m_list, &QListView::doubleClicked, this, &QDialog::accept);
        connect(filter, &QLineEdit::textChanged, this, [this](const QString& text) {
            m_narrowed.setFilterFixedString(text);
            PickFirst();
        });
        PickFirst();
    }

    ~LocusPicker() override { RememberPlace(*this); }

    QString Picked() const { return m_list->currentIndex().data().toString(); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // Up and Down walk the list while the text is typed.
        if (event->type() == QEvent::KeyPress)
        {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Up || key == Qt::Key_Down)
            {
                const int row = m_list->currentIndex().row() + (key == Qt::Key_Up ? -1 : 1);
                if (row >= 0 && row < m_narrowed.rowCount())
                    m_list->setCurrentIndex(m_narrowed.index(row, 0));
                return true;
            }
        }
        return QDialog::eventFilter(watched, event);
    }

private:
    void PickFirst()
    {
        m_list->setCurrentIndex(m_narrowed.index(0, 0));
        m_ok->setEnabled(m_narrowed.rowCount() > 0);
    }

    QStringListModel m_tags;
    QSortFilterProxyModel m_narrowed;
    QListView* m_list;
    QPushButton* m_ok;
};

QStringList CurrentTags(Store& store, QWidget* parent)
{
    const LongWork work(store, "Reading the loci...", parent);
    std::vector<std::pair<std::string, std::string>> tags; // With what the grids sort them by.
    const auto loci = CurrentLoci(store.Manager(), "");
    for (const auto& member : loci->Members())
    {
        const std::string tag = TrimRight(As<Locus>(member)->LocusTag());
        tags.emplace_back(SortKey(ColumnKind::Tags, tag, false), tag);
    }
    std::ranges::sort(tags);
    QStringList texts;
    for (const auto& [key, tag] : tags)
        texts += ToQString(tag);
    return texts;
}

} // namespace

std::optional<std::string> PickLocus(Store& store, const QString& title, QWidget* parent)
{
    LocusPicker picker(CurrentTags(store, parent), title, parent);
    if (picker.exec() != QDialog::Accepted)
        return std::nullopt;
    return FromQString(picker.Picked());
}

} // namespace Tamrivo
