// SPDX-FileCopyrightText: 2026 QLx Controls contributors
// SPDX-License-Identifier: MIT
#include "QLxColorButton.h"

#include "ColorMime_p.h"
#include "MultiselectMark_p.h"
#include "QLxColorSpaces.h"
#include "SharedColorDialog_p.h"
#include "WhileAlive_p.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <utility>

QLxColorButton::QLxColorButton(QWidget *parent)
    : QPushButton(parent)
{
    setObjectName(QStringLiteral("QLxColorButton"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setFlat(true);
    setAcceptDrops(true);
    connect(this, SIGNAL(clicked(bool)), this, SLOT(buttonClicked(bool)));
    setColor({0.0F, 0.0F, 0.8F});
}

QLxColorButton::~QLxColorButton()
{
    if (!sharedColorDialog)
        return;
    sharedColorDialog->disconnect(this); // hiding may commit what is half typed
    sharedColorDialog->hide();
}

QSize QLxColorButton::sizeHint() const
{
    return {20, 16};
}

void QLxColorButton::setColor(QLxColor color)
{
    m_color = color;
    const QColor shown = QLx::toQColor(color);
    const QString look = QString::asprintf("QPushButton {border: 1px solid rgb(127, 127, 127);"
                                           "border-radius: 3px;background: rgb(%i, %i, %i);}",
                                           shown.red(), shown.green(), shown.blue());
    if (look != styleSheet()) // a style sheet costs far more to set than to compare
        setStyleSheet(look);
}

void QLxColorButton::setShowColorDialog(bool value)
{
    m_showColorDialog = value;
}

void QLxColorButton::buttonClicked(bool /*checked*/)
{
    if (whileAlive(this, [this] { Q_EMIT colorButtonClicked(); }) && m_showColorDialog)
        openDialog();
}

void QLxColorButton::openDialog()
{
    // By way of RGB, so that the dialog starts from the same numbers as any conversion gives.
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;
    QLx::hsvToRgb(m_color, red, green, blue);
    const QLxColor color = QLx::rgbToHsv(red, green, blue);

    if (sharedColorDialog) {
        for (const char *signal : {SIGNAL(colorChanged(QLxColor)), SIGNAL(accepted()), SIGNAL(rejected())})
            disconnect(sharedColorDialog, signal, nullptr, nullptr);
    } else {
        QWidget *parent = this;
        while (parent->objectName() != QLatin1String("Module") && parent->parentWidget())
            parent = parent->parentWidget();
        sharedColorDialog = SharedColorDialog::create(color, parent);
        if (!sharedColorDialog)
            return;
    }
    sharedColorDialog->setDialogFlag(m_dialogFlag);
    connect(sharedColorDialog, SIGNAL(colorChanged(QLxColor)), this, SLOT(colorChanged(QLxColor)));
    connect(sharedColorDialog, SIGNAL(accepted()), this, SLOT(accepted()));
    connect(sharedColorDialog, SIGNAL(rejected()), this, SLOT(rejected()));
    whileAlive(
        sharedColorDialog, [] { sharedColorDialog->show(); }, [] { sharedColorDialog->raise(); },
        [&] {
            const QSignalBlocker blocker(sharedColorDialog);
            sharedColorDialog->setColor(color);
        });
}

void QLxColorButton::colorChanged(QLxColor color)
{
    Q_EMIT temporaryColorChosen(color);
}

void QLxColorButton::closeDialog(bool skipped)
{
    m_skipped = skipped;
    m_dialogFlag = true;
    if (!sharedColorDialog)
        return;
    sharedColorDialog->setDialogFlag(true);
    sharedColorDialog->hide();
}

void QLxColorButton::accepted()
{
    closeDialog(false);
    if (sharedColorDialog)
        setColor(sharedColorDialog->getColor());
    const QLxColor color = m_color;
    whileAlive(
        this, [&] { Q_EMIT finalColorChosen(color); }, [this] { Q_EMIT userAccepted(); });
}

void QLxColorButton::rejected()
{
    closeDialog(true);
    const QLxColor color = m_color;
    whileAlive(
        this, [&] { Q_EMIT finalColorChosen(color); }, [this] { Q_EMIT userSkipped(); });
}

void QLxColorButton::mousePressEvent(QMouseEvent *event)
{
    m_pressed = true;
    m_pressPos = event->pos();
}

void QLxColorButton::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    if (std::exchange(m_pressed, false))
        Q_EMIT clicked(true);
}

void QLxColorButton::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed || (m_pressPos - event->pos()).manhattanLength() <= QApplication::startDragDistance())
        return;
    QPixmap swatch(30, 20);
    swatch.fill(QLx::toQColor(m_color));
    whileAlive(
        this, [&] { QLx::dragColor(this, m_color, swatch); }, [&] { m_pressed = false; });
}

void QLxColorButton::dragEnterEvent(QDragEnterEvent *event)
{
    setFocus(Qt::OtherFocusReason);
    event->setAccepted(QLx::hasColor(event->mimeData()));
}

void QLxColorButton::dragMoveEvent(QDragMoveEvent *event)
{
    event->setAccepted(QLx::hasColor(event->mimeData()));
}

void QLxColorButton::dragLeaveEvent(QDragLeaveEvent * /*event*/)
{
    if (hasFocus() && parentWidget())
        parentWidget()->setFocus(Qt::OtherFocusReason);
}

void QLxColorButton::dropEvent(QDropEvent *event)
{
    if (!QLx::hasColor(event->mimeData())) {
        event->ignore();
        return;
    }
    const QLxColor color = QLx::colorFrom(event->mimeData());
    event->accept();
    setColor(color);
    Q_EMIT finalColorChosen(color);
}

void QLxColorButton::paintEvent(QPaintEvent *event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    QLx::paintMultiselectMark(painter, *this);
}
