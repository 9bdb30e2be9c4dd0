#include "shell/ButtonBar.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int iconSize = 32;
constexpr int barWidth = 136;

} // namespace

ButtonBar::ButtonBar(QWidget *parent) : QWidget(parent), m_layout(new QVBoxLayout(this))
{
    m_layout->setContentsMargins(6, 6, 6, 6);
    m_layout->setSpacing(12);
    m_layout->addStretch(1);
    setFixedWidth(barWidth);
}

void ButtonBar::addHeader(const QString &key, const QString &caption)
{
    auto *group = new QVBoxLayout;
    group->setSpacing(4);
    auto *label = new QLabel(caption, this);
    label->setObjectName(key);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    group->addWidget(label);
    m_layout->insertLayout(m_layout->count() - 1, group);
    m_headers.push_back({key, label, {}, group});
}

void ButtonBar::addItem(int header, const QString &key, const QString &caption, const QIcon &icon)
{
    Header &group = m_headers[size_t(header - 1)];
    auto *button = new QToolButton(this);
    button->setObjectName(key);
    button->setText(caption);
    button->setAccessibleName(caption);
    button->setIcon(icon);
    button->setIconSize({iconSize, iconSize});
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    group.layout->addWidget(button);
    group.items.push_back(button);
    connect(button, &QToolButton::clicked, this, [this, key] { Q_EMIT itemClicked(key.toLower()); });
}

int ButtonBar::itemCount(int header) const
{
    return int(m_headers[size_t(header - 1)].items.size());
}

void ButtonBar::setHeaderCaption(int header, const QString &caption)
{
    m_headers[size_t(header - 1)].caption->setText(caption);
}

void ButtonBar::setItemCaption(int header, int item, const QString &caption)
{
    QToolButton *button = m_headers[size_t(header - 1)].items[size_t(item - 1)];
    button->setText(caption);
    button->setAccessibleName(caption);
}

QString ButtonBar::headerCaption(int header) const
{
    return m_headers[size_t(header - 1)].caption->text();
}

QString ButtonBar::itemCaption(int header, int item) const
{
    return m_headers[size_t(header - 1)].items[size_t(item - 1)]->text();
}
