#pragma once
#include <QLabel>

/// Shows the picture of a file as large as its place allows, never stretched, and again when the place changes.
class PicturePreview : public QLabel {
    Q_OBJECT
public:
    using QLabel::QLabel;

    /// An empty path, or a file that is no picture, shows nothing.
    void showFile(const QString &path);
    /// The picture has no say in its own place.
    QSize sizeHint() const override { return minimumSize(); }
    QSize minimumSizeHint() const override { return minimumSize(); }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    QString m_path;
};
