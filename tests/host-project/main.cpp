// SPDX-FileCopyrightText: 2026 QuorvaMedia
// SPDX-License-Identifier: Apache-2.0

// A host that only knows the installed package.
#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCoreApplication>
#include <cstdio>

static_assert(QUORVAMEDIA_VERSION >= QUORVAMEDIA_VERSION_CHECK(2, 0, 0), "the installed headers are 2.x");

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setPubId(QStringLiteral("1042"));
    const QString address = api->urlString(QStringLiteral("https://h/p"), QVariantMap{{QStringLiteral("a"), 1}});
    std::printf("%s%s\n%.1f\nrelease %s\n", reinterpret_cast<const char *>(QuorvaMediaVersionString),
                qPrintable(address), QuorvaMediaVersionNumber, QUORVAMEDIA_VERSION_STR);
    return address == QLatin1String("https://h/p?a=1") ? 0 : 1;
}
