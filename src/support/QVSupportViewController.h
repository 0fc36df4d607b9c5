// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "quorvamedia_global.h"
#include "QVEmailViewController.h"

#include <QtGui/QColor>
#include <QtQuick/QQuickItem>
#include <memory>

class QVFAQViewController;
class QVHistoryViewController;

class QVSupportViewControllerPrivate;

/// The support centre: a segmented control over three tabs (FAQ, history, ticket form)
/// and one error strip in which the form shows its validation messages. Each tab is built
/// the first time it is needed, and the first change of tab builds all three, which is
/// when the history is asked for. The wall opens and closes the centre; it never closes
/// itself.
class QUORVAMEDIA_EXPORT QVSupportViewController : public QQuickItem, public QVEmailViewControllerDelegate
{
    Q_OBJECT
    QML_NAMED_ELEMENT(QVSupportViewControllerBase)
    /// Outlet: the segmented control, set by the interface file.
    Q_PROPERTY(QQuickItem *segmentedControl READ segmentedControl WRITE setSegmentedControl NOTIFY outletsChanged FINAL)
    /// Outlet: the error label, set by the interface file.
    Q_PROPERTY(QQuickItem *errorLabel READ errorLabel WRITE setErrorLabel NOTIFY outletsChanged FINAL)
    /// The colour behind the current tab.
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY backgroundColorChanged FINAL)
    /// The form's grey is shown: the theme's background rather than its card colour.
    Q_PROPERTY(bool showsFormBackground READ showsFormBackground NOTIFY backgroundColorChanged FINAL)
    /// The tabs fill the centre below this many points.
    Q_PROPERTY(qreal childTop READ childTop CONSTANT FINAL)
    /// The error strip's corner radius, in points.
    Q_PROPERTY(qreal errorCornerRadius READ errorCornerRadius CONSTANT FINAL)

public:
    /// The tabs, in the segmented control's order.
    enum Tab { FaqTab = 0, HistoryTab = 1, FormTab = 2 };

    /// An empty centre; the wall builds it when the user opens it.
    explicit QVSupportViewController(QQuickItem *parent = nullptr);
    /// Destroys the centre and its tabs.
    ~QVSupportViewController() override;
    /// The type name, "QVSupportViewController".
    static QString identifier() { return QStringLiteral("QVSupportViewController"); }
    /// The tabs fill the centre below this many points.
    static qreal childTop() { return 50; }
    /// See #errorCornerRadius.
    static qreal errorCornerRadius() { return 4; }

    /// See #backgroundColor.
    QColor backgroundColor() const;
    /// See #showsFormBackground.
    bool showsFormBackground() const;
    /// See #errorLabel.
    QQuickItem *errorLabel() const;

    ///@{
    /// The tab, built when first asked for; owned by the centre.
    QVFAQViewController *faqViewController();
    QVHistoryViewController *historyViewController();
    QVEmailViewController *emailViewController();
    ///@}

    /// The segmented control's action.
    Q_INVOKABLE void onViewTypeChange(int index);
    /// The control reports each change of its segment here; its first segment being set
    /// while it is built is no change.
    Q_INVOKABLE void segmentChanged(int index);
    /// Shows the form's message in the error strip.
    void invalidInputMessage(const QString &message) override;
    /// Hides the error strip; the form's views post this on their first edit.
    void hideErrorMessage(QObject *notificationObject);

signals:
    ///@{
    /// Emitted when the properties that name this signal as their NOTIFY change.
    void outletsChanged();
    void backgroundColorChanged();
    ///@}

protected:
    /// Reimplemented from QQuickItem.
    void componentComplete() override;
    /// Reimplemented from QQuickItem.
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;

private:
    Q_DECL_HIDDEN void viewDidLoad();
    template <typename Child>
    Q_DECL_HIDDEN Child *createChild(const char *objectName);
    Q_DECL_HIDDEN void layoutChild(QQuickItem *child);
    Q_DECL_HIDDEN void setBackgroundColor(const QColor &color);
    Q_DECL_HIDDEN void setErrorVisible(bool visible);

    // The interface file reads and writes the outlets through their properties.
    Q_DECL_HIDDEN QQuickItem *segmentedControl() const;
    Q_DECL_HIDDEN void setSegmentedControl(QQuickItem *value);
    Q_DECL_HIDDEN void setErrorLabel(QQuickItem *value);

    Q_DECLARE_PRIVATE_D(m_d, QVSupportViewController)
    std::unique_ptr<QVSupportViewControllerPrivate> m_d;
};
