#pragma once
#include <QLabel>
#include <QTimer>

/// Shows the picture of a file as large as its place allows, never stretched, and again when the place changes.
class PicturePreview : public QLabel {
    Q_OBJECT
public:
    explicit PicturePreview(QWidget *parent = nullptr);

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
    QTimer m_settled; ///< a large picture is not read anew at every step of a drag
};
