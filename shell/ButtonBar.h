#pragma once
#include <QIcon>
#include <QWidget>
#include <vector>

class QLabel;
class QToolButton;
class QVBoxLayout;

/// The bar of large buttons at the left of the main window: headers, and below each its items. Both count from 1.
class ButtonBar : public QWidget {
    Q_OBJECT
public:
    explicit ButtonBar(QWidget *parent = nullptr);

    void addHeader(const QString &key, const QString &caption);
    void addItem(int header, const QString &key, const QString &caption, const QIcon &icon);
    int headerCount() const { return int(m_headers.size()); }
    int itemCount(int header) const;
    void setHeaderCaption(int header, const QString &caption);
    void setItemCaption(int header, int item, const QString &caption);
    QString headerCaption(int header) const;
    QString itemCaption(int header, int item) const;

Q_SIGNALS:
    void itemClicked(const QString &key);

private:
    struct Header {
        QString key;
        QLabel *caption;
        std::vector<QToolButton *> items;
        QVBoxLayout *layout;
    };
    std::vector<Header> m_headers;
    QVBoxLayout *m_layout;
};
