// SPDX-License-Identifier: MIT
#include "sentences/language.h"

#include "sentences/sentence.h"

#include <QDir>
#include <QTextCodec>
#include <QTranslator>

#include <clocale>
#include <limits>
#include <map>
#include <memory>
#include <mutex>

// Outside of namespaces, as the macro needs it.
static void initTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace lessonhost {

namespace {

const QLatin1String folder(":/translations");
const QLatin1String filePrefix("lessonconv_");
const QLatin1String englishName("en");

// What English needs of it are forms for numbers.
const QTranslator &translatorOf(const QString &language)
{
    static std::map<QString, std::unique_ptr<QTranslator>> translators;
    static std::mutex mutex; // for threads that read and write a lesson
    const std::lock_guard<std::mutex> lock(mutex);
    std::unique_ptr<QTranslator> &translator = translators[language];
    if (!translator) {
        initTranslations();
        translator = std::make_unique<QTranslator>();
        static_cast<void>(
            translator->load(filePrefix + (language.isEmpty() ? QString(englishName) : language), folder));
    }
    return *translator;
}

QString &spoken()
{
    static QString language;
    return language;
}

// "de_AT.UTF-8@euro" is "de_AT".
QString nameOf(const QString &locale)
{
    return locale.section(QLatin1Char('.'), 0, 0).section(QLatin1Char('@'), 0, 0);
}

// The locale for a category, such as "LC_MESSAGES".
QString localeOf(const char *category)
{
    for (const char *variable : {"LC_ALL", category, "LANG"}) {
        const QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty()) {
            return value;
        }
    }
    return {};
}

bool canWrite(const QString &language)
{
    const QTextCodec *codec = QTextCodec::codecForLocale();
    // Letters that the language needs.
    return codec && codec->canEncode(translated(language, TO_SAY("Open the page yourself")));
}

} // namespace

QStringList translatedLanguages()
{
    initTranslations();
    QStringList languages;
    const QStringList files = QDir(folder).entryList({filePrefix + QLatin1Char('*')}, QDir::Files, QDir::Name);
    for (const QString &file : files) {
        const QString language = file.mid(filePrefix.size()).section(QLatin1Char('.'), 0, 0);
        if (language != englishName) {
            languages.append(language);
        }
    }
    return languages;
}

QString languageOfEnvironment()
{
    const QString locale = localeOf("LC_MESSAGES");
    const QString name = nameOf(locale);
    if (locale.isEmpty() || locale == QLatin1String("C") || name == QLatin1String("POSIX")) {
        return {};
    }
    QStringList wanted = qEnvironmentVariable("LANGUAGE").split(QLatin1Char(':'), Qt::SkipEmptyParts);
    wanted.append(locale);
    const QStringList languages = translatedLanguages();
    for (const QString &one : qAsConst(wanted)) {
        const QString given = nameOf(one);
        const QString language = given.section(QLatin1Char('_'), 0, 0);
        if (language == englishName) {
            return {};
        }
        for (const QString &translation : languages) {
            // A translation for a country serves those who name no other one.
            const bool isIt = translation == given || translation == language
                || (given == language && translation.startsWith(language + QLatin1Char('_')));
            if (isIt && canWrite(translation)) {
                return translation;
            }
        }
    }
    return {};
}

void speak(const QString &language)
{
    spoken() = language;
}

QString spokenLanguage()
{
    return spoken();
}

QString languageTag(const QString &language)
{
    return language.isEmpty() ? QString(englishName) : QString(language).replace(QLatin1Char('_'), QLatin1Char('-'));
}

QString translated(const QString &language, const char *text, qint64 number, const char *context)
{
    QString found;
    if (!language.isEmpty() || number >= 0) {
        found = translatorOf(language).translate(context, text, nullptr,
                                                 int(qMin<qint64>(number, std::numeric_limits<int>::max())));
    }
    if (found.isEmpty()) {
        found = QString::fromUtf8(text);
    }
    return number >= 0 ? found.replace(QLatin1String("%n"), QString::number(number)) : found;
}

void takeEncodingOfEnvironment()
{
    const bool isInstalled = std::setlocale(LC_CTYPE, "") != nullptr;
    const QString encoding = localeOf("LC_CTYPE").section(QLatin1Char('.'), 1).toLower().remove(QLatin1Char('-'));
    if (!isInstalled && encoding.startsWith(QLatin1String("utf8"))) {
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    }
}

} // namespace lessonhost
