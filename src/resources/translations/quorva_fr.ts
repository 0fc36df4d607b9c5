<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>FormTextField</name>
    <message>
        <source>Clear %1</source>
        <translation>Effacer %1</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obligatoire, non valide : %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatoire</translation>
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
        <translation>Comment pouvons-nous vous aider ?</translation>
    </message>
    <message>
        <source>I completed an offer but wasn&apos;t credited</source>
        <translation>J&apos;ai terminé une offre mais rien n&apos;a été crédité</translation>
    </message>
    <message>
        <source>Report an offer</source>
        <translation>Signaler une offre</translation>
    </message>
    <message>
        <source>Something else</source>
        <translation>Autre chose</translation>
    </message>
</context>
<context>
    <name>QVEmailViewController</name>
    <message>
        <source>When did you complete it?</source>
        <translation>Quand l&apos;avez-vous terminée ?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Done choosing the date</source>
        <translation>Valider la date</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Jour</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Message Sent</source>
        <translation>Message envoyé</translation>
    </message>
    <message>
        <source>We will review your inquiry and respond shortly.</source>
        <translation>Nous examinerons votre demande et vous répondrons rapidement.</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Pas de connexion</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Vérifiez votre connexion Internet et réessayez.</translation>
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
        <translation>Dites-nous ce qui s&apos;est passé</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obligatoire, non valide : %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatoire</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
    <message>
        <source>%1 characters left</source>
        <translation>%1 caractères restants</translation>
    </message>
</context>
<context>
    <name>QVEnterInformationView</name>
    <message>
        <source>Your name</source>
        <translation>Votre nom</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Adresse e-mail</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
</context>
<context>
    <name>QVEnterOfferTitleView</name>
    <message>
        <source>Name of the offer</source>
        <translation>Nom de l&apos;offre</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Offre</translation>
    </message>
</context>
<context>
    <name>QVFAQViewController</name>
    <message>
        <source>Frequently asked questions</source>
        <translation>Questions fréquentes</translation>
    </message>
</context>
<context>
    <name>QVFiltersViewController</name>
    <message>
        <source>Apply Filters</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Apply the filters</source>
        <translation>Appliquer les filtres</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Sort by Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>À la une</translation>
    </message>
    <message>
        <source>Popularity</source>
        <translation>Popularité</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Tendances</translation>
    </message>
    <message>
        <source>Payout: High to Low</source>
        <translation>Gain : décroissant</translation>
    </message>
    <message>
        <source>Credit Delay</source>
        <translation>Délai de crédit</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Pas de connexion</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Vérifiez votre connexion Internet et réessayez.</translation>
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
        <translation>Aucune offre terminée</translation>
    </message>
    <message>
        <source>Offers you complete show up here once they are credited.</source>
        <translation>Les offres terminées apparaissent ici une fois créditées.</translation>
    </message>
    <message>
        <source>Credited offers</source>
        <translation>Offres créditées</translation>
    </message>
</context>
<context>
    <name>QVOfferDateCompletedView</name>
    <message>
        <source>Completed on</source>
        <translation>Terminée le</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obligatoire, non valide : %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatoire</translation>
    </message>
</context>
<context>
    <name>QVOfferTimeCompletedView</name>
    <message>
        <source>Has it been more than 24 hours since you completed the offer?</source>
        <translation>Avez-vous terminé l&apos;offre il y a plus de 24 heures ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
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
        <translation>Gagner %1</translation>
    </message>
</context>
<context>
    <name>QVOffersViewController</name>
    <message>
        <source>Loading offers…</source>
        <translation>Chargement des offres…</translation>
    </message>
    <message>
        <source>No offers right now</source>
        <translation>Aucune offre pour le moment</translation>
    </message>
    <message>
        <source>New ways to earn arrive often. Check back soon.</source>
        <translation>De nouvelles offres arrivent souvent. Revenez bientôt.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load offers</source>
        <translation>Impossible de charger les offres</translation>
    </message>
    <message>
        <source>Check your connection and try again.</source>
        <translation>Vérifiez votre connexion et réessayez.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Try loading the offers again</source>
        <translation>Recharger les offres</translation>
    </message>
    <message>
        <source>Close the offers</source>
        <translation>Fermer les offres</translation>
    </message>
    <message>
        <source>Help and support</source>
        <translation>Aide et assistance</translation>
    </message>
    <message>
        <source>Sort and filter offers</source>
        <translation>Trier et filtrer les offres</translation>
    </message>
    <message>
        <source>Earn %1</source>
        <translation>Gagnez des %1</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Pas de connexion</translation>
    </message>
    <message>
        <source> Please check your internet and try again.</source>
        <translation> Vérifiez votre connexion Internet et réessayez.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sort/Filter Offers</source>
        <translation>Trier/Filtrer</translation>
    </message>
    <message>
        <source>Corvel Support</source>
        <translation>Assistance Corvel</translation>
    </message>
    <message>
        <source>Offers</source>
        <translation>Offres</translation>
    </message>
    <message numerus="yes">
        <source>%n offers</source>
        <translation>
            <numerusform>%n offre</numerusform>
            <numerusform>%n offres</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>minus %1 %2</source>
        <translation>moins %1 %2</translation>
    </message>
</context>
<context>
    <name>QVQuestionCollectionViewCell</name>
    <message>
        <source>Shows the answer</source>
        <translation>Affiche la réponse</translation>
    </message>
</context>
<context>
    <name>QVSupportPopover</name>
    <message>
        <source>Corvel Support</source>
        <translation>Assistance Corvel</translation>
    </message>
    <message>
        <source>Close support</source>
        <translation>Fermer l&apos;assistance</translation>
    </message>
</context>
<context>
    <name>QVSupportSendButtonView</name>
    <message>
        <source>Send</source>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Envoyer le message</translation>
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
        <translation>Historique</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Support sections</source>
        <translation>Rubriques d'aide</translation>
    </message>
</context>
<context>
    <name>QVTransactionCollectionViewCell</name>
    <message>
        <source>Credited</source>
        <translation>Crédité</translation>
    </message>
    <message>
        <source>%1, %2, credited %3</source>
        <comment>a credit: the offer, the amount, when</comment>
        <translation>%1, %2, crédité le %3</translation>
    </message>
</context>
<context>
    <name>QVUnableToAssist</name>
    <message>
        <source>Rewards can take up to 24 hours</source>
        <translation>Les récompenses peuvent prendre jusqu&apos;à 24 heures</translation>
    </message>
    <message>
        <source>Please check back tomorrow; we can&apos;t look into it sooner.</source>
        <translation>Revenez demain ; nous ne pouvons pas vérifier plus tôt.</translation>
    </message>
</context>
<context>
    <name>TicketFormCheck</name>
    <message>
        <source>Please enter a valid name</source>
        <translation>Veuillez saisir un nom valide</translation>
    </message>
    <message>
        <source>Please enter a valid email</source>
        <translation>Veuillez saisir une adresse e-mail valide</translation>
    </message>
    <message>
        <source>Please enter a valid offer name</source>
        <translation>Veuillez saisir un nom d&apos;offre valide</translation>
    </message>
    <message>
        <source>Please enter a date</source>
        <translation>Veuillez saisir une date</translation>
    </message>
    <message>
        <source>Please provide additional comments</source>
        <translation>Veuillez ajouter des précisions</translation>
    </message>
</context>
</TS>
