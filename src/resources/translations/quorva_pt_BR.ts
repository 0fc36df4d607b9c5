<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>FormTextField</name>
    <message>
        <source>Clear %1</source>
        <translation>Limpar %1</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obrigatório, inválido: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obrigatório</translation>
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
        <translation>Como podemos ajudar?</translation>
    </message>
    <message>
        <source>I completed an offer but wasn&apos;t credited</source>
        <translation>Concluí uma oferta, mas não recebi o crédito</translation>
    </message>
    <message>
        <source>Report an offer</source>
        <translation>Denunciar uma oferta</translation>
    </message>
    <message>
        <source>Something else</source>
        <translation>Outro assunto</translation>
    </message>
</context>
<context>
    <name>QVEmailViewController</name>
    <message>
        <source>When did you complete it?</source>
        <translation>Quando você concluiu?</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Done choosing the date</source>
        <translation>Concluir escolha da data</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mês</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Message Sent</source>
        <translation>Mensagem enviada</translation>
    </message>
    <message>
        <source>We will review your inquiry and respond shortly.</source>
        <translation>Vamos analisar sua solicitação e responder em breve.</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Sem conexão</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Verifique sua internet e tente novamente.</translation>
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
        <translation>Conte o que aconteceu</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obrigatório, inválido: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obrigatório</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Mensagem</translation>
    </message>
    <message>
        <source>%1 characters left</source>
        <translation>Restam %1 caracteres</translation>
    </message>
</context>
<context>
    <name>QVEnterInformationView</name>
    <message>
        <source>Your name</source>
        <translation>Seu nome</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
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
        <translation>Nome da oferta</translation>
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
        <translation>Perguntas frequentes</translation>
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
        <translation>Aplicar os filtros</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Sort by Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Todas as categorias</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>Destaques</translation>
    </message>
    <message>
        <source>Popularity</source>
        <translation>Popularidade</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>Em alta</translation>
    </message>
    <message>
        <source>Payout: High to Low</source>
        <translation>Pagamento: maior primeiro</translation>
    </message>
    <message>
        <source>Credit Delay</source>
        <translation>Prazo de crédito</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Sem conexão</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>Verifique sua internet e tente novamente.</translation>
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
        <translation>Nenhuma oferta concluída ainda</translation>
    </message>
    <message>
        <source>Offers you complete show up here once they are credited.</source>
        <translation>As ofertas concluídas aparecem aqui depois de creditadas.</translation>
    </message>
    <message>
        <source>Credited offers</source>
        <translation>Ofertas creditadas</translation>
    </message>
</context>
<context>
    <name>QVOfferDateCompletedView</name>
    <message>
        <source>Completed on</source>
        <translation>Concluída em</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>Obrigatório, inválido: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obrigatório</translation>
    </message>
</context>
<context>
    <name>QVOfferTimeCompletedView</name>
    <message>
        <source>Has it been more than 24 hours since you completed the offer?</source>
        <translation>Já se passaram mais de 24 horas desde que você concluiu a oferta?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
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
        <translation>Ganhe %1</translation>
    </message>
</context>
<context>
    <name>QVOffersViewController</name>
    <message>
        <source>Loading offers…</source>
        <translation>Carregando ofertas…</translation>
    </message>
    <message>
        <source>No offers right now</source>
        <translation>Nenhuma oferta no momento</translation>
    </message>
    <message>
        <source>New ways to earn arrive often. Check back soon.</source>
        <translation>Novas formas de ganhar chegam sempre. Volte em breve.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load offers</source>
        <translation>Não foi possível carregar as ofertas</translation>
    </message>
    <message>
        <source>Check your connection and try again.</source>
        <translation>Verifique sua conexão e tente novamente.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Tentar de novo</translation>
    </message>
    <message>
        <source>Try loading the offers again</source>
        <translation>Carregar as ofertas de novo</translation>
    </message>
    <message>
        <source>Close the offers</source>
        <translation>Fechar as ofertas</translation>
    </message>
    <message>
        <source>Help and support</source>
        <translation>Ajuda e suporte</translation>
    </message>
    <message>
        <source>Sort and filter offers</source>
        <translation>Ordenar e filtrar ofertas</translation>
    </message>
    <message>
        <source>Earn %1</source>
        <translation>Ganhe %1</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>Sem conexão</translation>
    </message>
    <message>
        <source> Please check your internet and try again.</source>
        <translation> Verifique sua internet e tente novamente.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Sort/Filter Offers</source>
        <translation>Ordenar/Filtrar</translation>
    </message>
    <message>
        <source>Corvel Support</source>
        <translation>Suporte Corvel</translation>
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
        <translation>Mostra a resposta</translation>
    </message>
</context>
<context>
    <name>QVSupportPopover</name>
    <message>
        <source>Corvel Support</source>
        <translation>Suporte Corvel</translation>
    </message>
    <message>
        <source>Close support</source>
        <translation>Fechar suporte</translation>
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
        <translation>Enviar a mensagem</translation>
    </message>
</context>
<context>
    <name>QVSupportViewController</name>
    <message>
        <source>FAQ</source>
        <translation>Dúvidas</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contato</translation>
    </message>
    <message>
        <source>Support sections</source>
        <translation>Seções de suporte</translation>
    </message>
</context>
<context>
    <name>QVTransactionCollectionViewCell</name>
    <message>
        <source>Credited</source>
        <translation>Creditado</translation>
    </message>
    <message>
        <source>%1, %2, credited %3</source>
        <comment>a credit: the offer, the amount, when</comment>
        <translation>%1, %2, creditado em %3</translation>
    </message>
</context>
<context>
    <name>QVUnableToAssist</name>
    <message>
        <source>Rewards can take up to 24 hours</source>
        <translation>As recompensas podem levar até 24 horas</translation>
    </message>
    <message>
        <source>Please check back tomorrow; we can&apos;t look into it sooner.</source>
        <translation>Volte amanhã; não conseguimos verificar antes disso.</translation>
    </message>
</context>
<context>
    <name>TicketFormCheck</name>
    <message>
        <source>Please enter a valid name</source>
        <translation>Digite um nome válido</translation>
    </message>
    <message>
        <source>Please enter a valid email</source>
        <translation>Digite um e-mail válido</translation>
    </message>
    <message>
        <source>Please enter a valid offer name</source>
        <translation>Digite um nome de oferta válido</translation>
    </message>
    <message>
        <source>Please enter a date</source>
        <translation>Informe uma data</translation>
    </message>
    <message>
        <source>Please provide additional comments</source>
        <translation>Adicione mais detalhes</translation>
    </message>
</context>
</TS>
