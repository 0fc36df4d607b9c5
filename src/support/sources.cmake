# SPDX-FileCopyrightText: 2026 QuorvaMedia
# SPDX-License-Identifier: Apache-2.0

# The support centre: FAQ, credited history and the support-ticket form.
list(APPEND QUORVA_PUBLIC_HEADERS
    support/QVSupportViewController.h
    support/QVFAQViewController.h
    support/QVQuestionCollectionViewCell.h
    support/QVQACollectionViewCell.h
    support/QVHistoryViewController.h
    support/QVTransactionCollectionViewCell.h
    support/QVEmailViewController.h
    support/QVFormFieldView.h
    support/QVEnterInformationView.h
    support/QVEnterCommentView.h
    support/QVEnterOfferTitleView.h
    support/QVSupportSendButtonView.h
    support/QVUnableToAssist.h
    support/QVChooseSubjectView.h
    support/QVOfferTimeCompletedView.h
    support/QVOfferDateCompletedView.h
)

list(APPEND QUORVA_UI_SOURCES
    support/QVSupportViewController.cpp
    support/QVFAQViewController.cpp
    support/QVFaqListModel.h support/QVFaqListModel.cpp
    support/FaqPropertyList.h support/FaqPropertyList.cpp
    support/QVQACollectionViewCell.cpp
    support/QVHistoryViewController.cpp
    support/QVTransactionsListModel.h support/QVTransactionsListModel.cpp
    support/QVEmailViewController.cpp
    support/QVEmailViewControllerSending.cpp
    support/TicketFormCheck.h support/TicketFormCheck.cpp
    support/QVDatePicker.h support/QVDatePicker.cpp
    support/QVFormFieldView.cpp
    support/QVEnterInformationView.cpp
    support/QVEnterCommentView.cpp
    support/QVEnterOfferTitleView.cpp
    support/QVChooseSubjectView.cpp
    support/QVOfferTimeCompletedView.cpp
    support/QVOfferDateCompletedView.cpp
    support/ChooserMarks.h
)

list(APPEND QUORVA_QML_FILES
    resources/qml/QVSupportViewController.qml
    resources/qml/QVFAQViewController.qml
    resources/qml/QVQuestionCollectionViewCell.qml
    resources/qml/QVQACollectionViewCell.qml
    resources/qml/QVHistoryViewController.qml
    resources/qml/QVTransactionCollectionViewCell.qml
    resources/qml/QVEmailViewController.qml
    resources/qml/QVEnterInformationView.qml
    resources/qml/QVEnterCommentView.qml
    resources/qml/QVEnterOfferTitleView.qml
    resources/qml/QVSupportSendButtonView.qml
    resources/qml/QVUnableToAssist.qml
    resources/qml/QVChooseSubjectView.qml
    resources/qml/QVOfferTimeCompletedView.qml
    resources/qml/QVOfferDateCompletedView.qml
    resources/qml/FormCard.qml
    resources/qml/FormTextField.qml
    resources/qml/FieldHint.qml
    resources/qml/ChoiceRow.qml
    resources/qml/DateWheel.qml
)

list(APPEND QUORVA_RESOURCE_FILES
    resources/faqs.plist
    resources/de.lproj/faqs.plist
    resources/es.lproj/faqs.plist
    resources/fr.lproj/faqs.plist
    resources/pt_BR.lproj/faqs.plist
    resources/ar.lproj/faqs.plist
    resources/icons/name_field_icon
    resources/icons/name_field_error
    resources/icons/email_field_icon
    resources/icons/email_field_error
    resources/icons/comment_field_icon
    resources/icons/comment_field_error
    resources/icons/title_field_icon
    resources/icons/title_field_error
    resources/icons/date_field_icon
    resources/icons/date_field_error
    resources/icons/chevron.svg
    resources/icons/info.svg
    resources/icons/checkmark-white.svg
)
