<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>FormTextField</name>
    <message>
        <source>Clear %1</source>
        <translation>Borrar %1</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obligatorio, no válido: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
</context>
<context>
    <name>QVAlert</name>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>QVChooseSubjectView</name>
    <message>
        <source>What can we help you with?</source>
        <translation>¿En qué podemos ayudarte?</translation>
    </message>
    <message>
        <source>I completed an offer but wasn&apos;t credited</source>
        <translation>Completé una oferta pero no recibí el crédito</translation>
    </message>
    <message>
        <source>Report an offer</source>
        <translation>Denunciar una oferta</translation>
    </message>
    <message>
        <source>Something else</source>
        <translation>Otra cosa</translation>
    </message>
</context>
<context>
    <name>QVEmailViewController</name>
    <message>
        <source>When did you complete it?</source>
        <translation>¿Cuándo la completaste?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Done choosing the date</source>
        <translation>Terminar de elegir la fecha</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Message Sent</source>
        <translation>Mensaje enviado</translation>
    </message>
    <message>
        <source>We will review your inquiry and respond shortly.</source>
        <translation>Revisaremos tu consulta y te responderemos pronto.</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Revisa tu conexión a internet e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>QVEnterCommentView</name>
    <message>
        <source>Tell us what happened</source>
        <translation>Cuéntanos qué pasó</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obligatorio, no válido: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensaje</translation>
    </message>
    <message>
        <source>%1 characters left</source>
        <translation>Quedan %1 caracteres</translation>
    </message>
</context>
<context>
    <name>QVEnterInformationView</name>
    <message>
        <source>Your name</source>
        <translation>Tu nombre</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
</context>
<context>
    <name>QVEnterOfferTitleView</name>
    <message>
        <source>Name of the offer</source>
        <translation>Nombre de la oferta</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>Oferta</translation>
    </message>
</context>
<context>
    <name>QVFAQViewController</name>
    <message>
        <source>Frequently asked questions</source>
        <translation>Preguntas frecuentes</translation>
    </message>
</context>
<context>
    <name>QVFiltersViewController</name>
    <message>
        <source>Apply Filters</source>
        <translation>Aplicar filtros</translation>
    </message>
    <message>
        <source>Apply the filters</source>
        <translation>Aplicar los filtros</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Sort by Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Todas las categorías</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Destacadas</translation>
    </message>
    <message>
        <source>Popularity</source>
        <translation>Popularidad</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Tendencias</translation>
    </message>
    <message>
        <source>Payout: High to Low</source>
        <translation>Pago: de mayor a menor</translation>
    </message>
    <message>
        <source>Credit Delay</source>
        <translation>Tiempo de acreditación</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Revisa tu conexión a internet e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>QVHistoryViewController</name>
    <message>
        <source>No offers completed yet</source>
        <translation>Aún no has completado ofertas</translation>
    </message>
    <message>
        <source>Offers you complete show up here once they are credited.</source>
        <translation>Las ofertas que completes aparecerán aquí cuando se acrediten.</translation>
    </message>
    <message>
        <source>Credited offers</source>
        <translation>Ofertas acreditadas</translation>
    </message>
</context>
<context>
    <name>QVOfferDateCompletedView</name>
    <message>
        <source>Completed on</source>
        <translation>Completada el</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obligatorio, no válido: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
</context>
<context>
    <name>QVOfferTimeCompletedView</name>
    <message>
        <source>Has it been more than 24 hours since you completed the offer?</source>
        <translation>¿Han pasado más de 24 horas desde que completaste la oferta?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
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
        <translation>Gana %1</translation>
    </message>
</context>
<context>
    <name>QVOffersViewController</name>
    <message>
        <source>Loading offers…</source>
        <translation>Cargando ofertas…</translation>
    </message>
    <message>
        <source>No offers right now</source>
        <translation>No hay ofertas ahora</translation>
    </message>
    <message>
        <source>New ways to earn arrive often. Check back soon.</source>
        <translation>Llegan nuevas formas de ganar a menudo. Vuelve pronto.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load offers</source>
        <translation>No se pudieron cargar las ofertas</translation>
    </message>
    <message>
        <source>Check your connection and try again.</source>
        <translation>Revisa tu conexión e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Try loading the offers again</source>
        <translation>Volver a cargar las ofertas</translation>
    </message>
    <message>
        <source>Close the offers</source>
        <translation>Cerrar las ofertas</translation>
    </message>
    <message>
        <source>Help and support</source>
        <translation>Ayuda y soporte</translation>
    </message>
    <message>
        <source>Sort and filter offers</source>
        <translation>Ordenar y filtrar ofertas</translation>
    </message>
    <message>
        <source>Earn %1</source>
        <translation>Gana %1</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Sin conexión</translation>
    </message>
    <message>
        <source> Please check your internet and try again.</source>
        <translation> Revisa tu conexión a internet e inténtalo de nuevo.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Sort/Filter Offers</source>
        <translation>Ordenar/Filtrar</translation>
    </message>
    <message>
        <source>Corvel Support</source>
        <translation>Soporte Corvel</translation>
    </message>
    <message>
        <source>Offers</source>
        <translation>Ofertas</translation>
    </message>
    <message numerus="yes">
        <source>%n offers</source>
        <translation>
            <numerusform>%n oferta</numerusform>
            <numerusform>%n ofertas</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>minus %1 %2</source>
        <translation>menos %1 %2</translation>
    </message>
</context>
<context>
    <name>QVQuestionCollectionViewCell</name>
    <message>
        <source>Shows the answer</source>
        <translation>Muestra la respuesta</translation>
    </message>
</context>
<context>
    <name>QVSupportPopover</name>
    <message>
        <source>Corvel Support</source>
        <translation>Soporte Corvel</translation>
    </message>
    <message>
        <source>Close support</source>
        <translation>Cerrar soporte</translation>
    </message>
</context>
<context>
    <name>QVSupportSendButtonView</name>
    <message>
        <source>Send</source>
        <translation>Enviar</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>Enviar el mensaje</translation>
    </message>
</context>
<context>
    <name>QVSupportViewController</name>
    <message>
        <source>FAQ</source>
        <translation>Preguntas</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contacto</translation>
    </message>
    <message>
        <source>Support sections</source>
        <translation>Secciones de ayuda</translation>
    </message>
</context>
<context>
    <name>QVTransactionCollectionViewCell</name>
    <message>
        <source>Credited</source>
        <translation>Acreditado</translation>
    </message>
    <message>
        <source>%1, %2, credited %3</source>
        <comment>a credit: the offer, the amount, when</comment>
        <translation>%1, %2, acreditado el %3</translation>
    </message>
</context>
<context>
    <name>QVUnableToAssist</name>
    <message>
        <source>Rewards can take up to 24 hours</source>
        <translation>Las recompensas pueden tardar hasta 24 horas</translation>
    </message>
    <message>
        <source>Please check back tomorrow; we can&apos;t look into it sooner.</source>
        <translation>Vuelve mañana; no podemos revisarlo antes.</translation>
    </message>
</context>
<context>
    <name>TicketFormCheck</name>
    <message>
        <source>Please enter a valid name</source>
        <translation>Introduce un nombre válido</translation>
    </message>
    <message>
        <source>Please enter a valid email</source>
        <translation>Introduce un correo válido</translation>
    </message>
    <message>
        <source>Please enter a valid offer name</source>
        <translation>Introduce un nombre de oferta válido</translation>
    </message>
    <message>
        <source>Please enter a date</source>
        <translation>Introduce una fecha</translation>
    </message>
    <message>
        <source>Please provide additional comments</source>
        <translation>Añade más detalles</translation>
    </message>
</context>
</TS>
