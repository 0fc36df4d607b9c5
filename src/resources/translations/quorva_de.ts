<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>FormTextField</name>
    <message>
        <source>Clear %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Pflichtfeld, ungültig: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Pflichtfeld</translation>
    </message>
</context>
<context>
    <name>QVAlert</name>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QVChooseSubjectView</name>
    <message>
        <source>What can we help you with?</source>
        <translation>Wobei können wir helfen?</translation>
    </message>
    <message>
        <source>I completed an offer but wasn&apos;t credited</source>
        <translation>Ich habe ein Angebot abgeschlossen, aber keine Gutschrift erhalten</translation>
    </message>
    <message>
        <source>Report an offer</source>
        <translation>Angebot melden</translation>
    </message>
    <message>
        <source>Something else</source>
        <translation>Etwas anderes</translation>
    </message>
</context>
<context>
    <name>QVEmailViewController</name>
    <message>
        <source>When did you complete it?</source>
        <translation>Wann hast du es abgeschlossen?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Done choosing the date</source>
        <translation>Datumsauswahl beenden</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Message Sent</source>
        <translation>Nachricht gesendet</translation>
    </message>
    <message>
        <source>We will review your inquiry and respond shortly.</source>
        <translation>Wir prüfen deine Anfrage und melden uns bald.</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Keine Verbindung</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Bitte prüfe deine Internetverbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QVEnterCommentView</name>
    <message>
        <source>Tell us what happened</source>
        <translation>Erzähl uns, was passiert ist</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Pflichtfeld, ungültig: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Pflichtfeld</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Nachricht</translation>
    </message>
    <message>
        <source>%1 characters left</source>
        <translation>Noch %1 Zeichen</translation>
    </message>
</context>
<context>
    <name>QVEnterInformationView</name>
    <message>
        <source>Your name</source>
        <translation>Dein Name</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-Mail-Adresse</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
</context>
<context>
    <name>QVEnterOfferTitleView</name>
    <message>
        <source>Name of the offer</source>
        <translation>Name des Angebots</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Angebot</translation>
    </message>
</context>
<context>
    <name>QVFAQViewController</name>
    <message>
        <source>Frequently asked questions</source>
        <translation>Häufige Fragen</translation>
    </message>
</context>
<context>
    <name>QVFiltersViewController</name>
    <message>
        <source>Apply Filters</source>
        <translation>Filter anwenden</translation>
    </message>
    <message>
        <source>Apply the filters</source>
        <translation>Filter anwenden</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Sort by Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Empfohlen</translation>
    </message>
    <message>
        <source>Popularity</source>
        <translation>Beliebtheit</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Im Trend</translation>
    </message>
    <message>
        <source>Payout: High to Low</source>
        <translation>Prämie: absteigend</translation>
    </message>
    <message>
        <source>Credit Delay</source>
        <translation>Gutschriftdauer</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Keine Verbindung</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Bitte prüfe deine Internetverbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QVHistoryViewController</name>
    <message>
        <source>No offers completed yet</source>
        <translation>Noch keine Angebote abgeschlossen</translation>
    </message>
    <message>
        <source>Offers you complete show up here once they are credited.</source>
        <translation>Abgeschlossene Angebote erscheinen hier, sobald sie gutgeschrieben sind.</translation>
    </message>
    <message>
        <source>Credited offers</source>
        <translation>Gutgeschriebene Angebote</translation>
    </message>
</context>
<context>
    <name>QVOfferDateCompletedView</name>
    <message>
        <source>Completed on</source>
        <translation>Abgeschlossen am</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Pflichtfeld, ungültig: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Pflichtfeld</translation>
    </message>
</context>
<context>
    <name>QVOfferTimeCompletedView</name>
    <message>
        <source>Has it been more than 24 hours since you completed the offer?</source>
        <translation>Ist der Abschluss des Angebots mehr als 24 Stunden her?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>QVOfferUICollectionViewCell</name>
    <message>
        <source>%1, %2, %3</source>
        <comment>an offer: its name, its task, its payout</comment>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>Earn %1</source>
        <translation>%1 verdienen</translation>
    </message>
</context>
<context>
    <name>QVOffersViewController</name>
    <message>
        <source>Loading offers…</source>
        <translation>Angebote werden geladen…</translation>
    </message>
    <message>
        <source>No offers right now</source>
        <translation>Gerade keine Angebote</translation>
    </message>
    <message>
        <source>New ways to earn arrive often. Check back soon.</source>
        <translation>Neue Angebote kommen oft dazu. Schau bald wieder vorbei.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load offers</source>
        <translation>Angebote konnten nicht geladen werden</translation>
    </message>
    <message>
        <source>Check your connection and try again.</source>
        <translation>Prüfe deine Verbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Try loading the offers again</source>
        <translation>Angebote erneut laden</translation>
    </message>
    <message>
        <source>Close the offers</source>
        <translation>Angebote schließen</translation>
    </message>
    <message>
        <source>Help and support</source>
        <translation>Hilfe und Support</translation>
    </message>
    <message>
        <source>Sort and filter offers</source>
        <translation>Angebote sortieren und filtern</translation>
    </message>
    <message>
        <source>Earn %1</source>
        <translation>%1 verdienen</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Keine Verbindung</translation>
    </message>
    <message>
        <source> Please check your internet and try again.</source>
        <translation> Bitte prüfe deine Internetverbindung und versuche es erneut.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sort/Filter Offers</source>
        <translation>Sortieren/Filtern</translation>
    </message>
    <message>
        <source>Corvel Support</source>
        <translation>Corvel-Support</translation>
    </message>
    <message>
        <source>Offers</source>
        <translation>Angebote</translation>
    </message>
    <message numerus="yes">
        <source>%n offers</source>
        <translation>
            <numerusform>%n Angebot</numerusform>
            <numerusform>%n Angebote</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>minus %1 %2</source>
        <translation>minus %1 %2</translation>
    </message>
</context>
<context>
    <name>QVQuestionCollectionViewCell</name>
    <message>
        <source>Shows the answer</source>
        <translation>Zeigt die Antwort</translation>
    </message>
</context>
<context>
    <name>QVSupportPopover</name>
    <message>
        <source>Corvel Support</source>
        <translation>Corvel-Support</translation>
    </message>
    <message>
        <source>Close support</source>
        <translation>Support schließen</translation>
    </message>
</context>
<context>
    <name>QVSupportSendButtonView</name>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Nachricht senden</translation>
    </message>
</context>
<context>
    <name>QVSupportViewController</name>
    <message>
        <source>FAQ</source>
        <translation>FAQ</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Support sections</source>
        <translation>Support-Bereiche</translation>
    </message>
</context>
<context>
    <name>QVTransactionCollectionViewCell</name>
    <message>
        <source>Credited</source>
        <translation>Gutgeschrieben</translation>
    </message>
    <message>
        <source>%1, %2, credited %3</source>
        <comment>a credit: the offer, the amount, when</comment>
        <translation>%1, %2, gutgeschrieben am %3</translation>
    </message>
</context>
<context>
    <name>QVUnableToAssist</name>
    <message>
        <source>Rewards can take up to 24 hours</source>
        <translation>Gutschriften können bis zu 24 Stunden dauern</translation>
    </message>
    <message>
        <source>Please check back tomorrow; we can&apos;t look into it sooner.</source>
        <translation>Bitte schau morgen wieder vorbei; früher können wir es nicht prüfen.</translation>
    </message>
</context>
<context>
    <name>TicketFormCheck</name>
    <message>
        <source>Please enter a valid name</source>
        <translation>Bitte gib einen gültigen Namen ein</translation>
    </message>
    <message>
        <source>Please enter a valid email</source>
        <translation>Bitte gib eine gültige E-Mail-Adresse ein</translation>
    </message>
    <message>
        <source>Please enter a valid offer name</source>
        <translation>Bitte gib einen gültigen Angebotsnamen ein</translation>
    </message>
    <message>
        <source>Please enter a date</source>
        <translation>Bitte gib ein Datum ein</translation>
    </message>
    <message>
        <source>Please provide additional comments</source>
        <translation>Bitte gib weitere Details an</translation>
    </message>
</context>
</TS>
