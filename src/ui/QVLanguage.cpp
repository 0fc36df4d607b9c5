// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

#include "QVLanguage.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QTranslator>

namespace {
constexpr QLatin1StringView kTranslations(":/qt-project.org/imports/QuorvaMedia/i18n");
constexpr QLatin1StringView kResources(":/qt-project.org/imports/QuorvaMedia/");
constexpr QLatin1StringView kFilePrefix("quorva");

struct Language
{
    QTranslator *translator = nullptr;
    QLocale locale{QLocale::English, QLocale::UnitedStates};
};

Language &current()
{
    static Language language;
    return language;
}
} // namespace

namespace quorva::detail {

void useLanguageOf(const QLocale &locale)
{
    Language &language = current();
    if (language.locale == locale)
        return;
    auto next = std::make_unique<QTranslator>();
    const bool translated = locale.language() != QLocale::English
        && next->load(locale, kFilePrefix, QStringLiteral("_"), kTranslations);
    if (language.translator) {
        QCoreApplication::removeTranslator(language.translator);
        delete std::exchange(language.translator, nullptr);
    }
    language.locale = translated ? locale : QLocale(QLocale::English, QLocale::UnitedStates);
    if (translated) {
        language.translator = next.release();
        QCoreApplication::installTranslator(language.translator);
    }
}

QLocale libraryLocale()
{
    return current().locale;
}

QString localizedResource(const QString &name)
{
    const QLocale locale = libraryLocale();
    if (locale.language() != QLocale::English) {
        // "pt_BR" first, then "pt".
        for (const QString &folder : {locale.name(), locale.name().section(QLatin1Char('_'), 0, 0)}) {
            const QString path = kResources + folder + QStringLiteral(".lproj/") + name;
            if (QFile::exists(path))
                return path;
        }
    }
    return kResources + name;
}

} // namespace quorva::detail
