// A host that only knows the installed package.
#include <QuorvaMedia/QuorvaMedia.h>

#include <QtCore/QCoreApplication>
#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QuorvaRestAPI *api = QuorvaRestAPI::sharedInstance();
    api->setPubId(QStringLiteral("1042"));
    const QString address = api->urlString(QStringLiteral("https://h/p"), QVariantMap{{QStringLiteral("a"), 1}});
    std::printf("%s%s\n%.1f\n", reinterpret_cast<const char *>(QuorvaMediaVersionString),
                qPrintable(address), QuorvaMediaVersionNumber);
    return address == QLatin1String("https://h/p?a=1") ? 0 : 1;
}
