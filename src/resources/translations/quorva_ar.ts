<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>FormTextField</name>
    <message>
        <source>Clear %1</source>
        <translation>مسح %1</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>مطلوب، غير صالح: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>مطلوب</translation>
    </message>
</context>
<context>
    <name>QVAlert</name>
    <message>
        <source>Ok</source>
        <translation>حسنًا</translation>
    </message>
</context>
<context>
    <name>QVChooseSubjectView</name>
    <message>
        <source>What can we help you with?</source>
        <translation>كيف يمكننا مساعدتك؟</translation>
    </message>
    <message>
        <source>I completed an offer but wasn&apos;t credited</source>
        <translation>أكملت عرضًا ولم أحصل على المكافأة</translation>
    </message>
    <message>
        <source>Report an offer</source>
        <translation>الإبلاغ عن عرض</translation>
    </message>
    <message>
        <source>Something else</source>
        <translation>شيء آخر</translation>
    </message>
</context>
<context>
    <name>QVEmailViewController</name>
    <message>
        <source>When did you complete it?</source>
        <translation>متى أكملته؟</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Done choosing the date</source>
        <translation>إنهاء اختيار التاريخ</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>الشهر</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>اليوم</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>السنة</translation>
    </message>
    <message>
        <source>Message Sent</source>
        <translation>تم إرسال الرسالة</translation>
    </message>
    <message>
        <source>We will review your inquiry and respond shortly.</source>
        <translation>سنراجع طلبك ونرد عليك قريبًا.</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>لا يوجد اتصال</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>يرجى التحقق من اتصالك بالإنترنت والمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>حسنًا</translation>
    </message>
</context>
<context>
    <name>QVEnterCommentView</name>
    <message>
        <source>Tell us what happened</source>
        <translation>أخبرنا بما حدث</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>مطلوب، غير صالح: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>مطلوب</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>الرسالة</translation>
    </message>
    <message>
        <source>%1 characters left</source>
        <translation>متبقٍ %1 حرفًا</translation>
    </message>
</context>
<context>
    <name>QVEnterInformationView</name>
    <message>
        <source>Your name</source>
        <translation>اسمك</translation>
    </message>
    <message>
        <source>Email address</source>
        <translation>البريد الإلكتروني</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>البريد الإلكتروني</translation>
    </message>
</context>
<context>
    <name>QVEnterOfferTitleView</name>
    <message>
        <source>Name of the offer</source>
        <translation>اسم العرض</translation>
    </message>
    <message>
        <source>Offer</source>
        <translation>العرض</translation>
    </message>
</context>
<context>
    <name>QVFAQViewController</name>
    <message>
        <source>Frequently asked questions</source>
        <translation>الأسئلة الشائعة</translation>
    </message>
</context>
<context>
    <name>QVFiltersViewController</name>
    <message>
        <source>Apply Filters</source>
        <translation>تطبيق الفلاتر</translation>
    </message>
    <message>
        <source>Apply the filters</source>
        <translation>تطبيق الفلاتر</translation>
    </message>
    <message>
        <source>Sort by Type</source>
        <translation>الترتيب حسب</translation>
    </message>
    <message>
        <source>Sort by Category</source>
        <translation>الفئة</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>كل الفئات</translation>
    </message>
    <message>
        <source>Featured</source>
        <translation>مميزة</translation>
    </message>
    <message>
        <source>Popularity</source>
        <translation>الأكثر شيوعًا</translation>
    </message>
    <message>
        <source>Trending</source>
        <translation>الرائجة</translation>
    </message>
    <message>
        <source>Payout: High to Low</source>
        <translation>المكافأة: من الأعلى</translation>
    </message>
    <message>
        <source>Credit Delay</source>
        <translation>مدة الإضافة</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>لا يوجد اتصال</translation>
    </message>
    <message>
        <source>Please check your internet and try again.</source>
        <translation>يرجى التحقق من اتصالك بالإنترنت والمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>حسنًا</translation>
    </message>
</context>
<context>
    <name>QVHistoryViewController</name>
    <message>
        <source>No offers completed yet</source>
        <translation>لم تكمل أي عرض بعد</translation>
    </message>
    <message>
        <source>Offers you complete show up here once they are credited.</source>
        <translation>تظهر العروض التي تكملها هنا بعد إضافة مكافآتها.</translation>
    </message>
    <message>
        <source>Credited offers</source>
        <translation>العروض المضافة</translation>
    </message>
</context>
<context>
    <name>QVOfferDateCompletedView</name>
    <message>
        <source>Completed on</source>
        <translation>تاريخ الإكمال</translation>
    </message>
    <message>
        <source>Required, invalid: %1</source>
        <translation>مطلوب، غير صالح: %1</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>مطلوب</translation>
    </message>
</context>
<context>
    <name>QVOfferTimeCompletedView</name>
    <message>
        <source>Has it been more than 24 hours since you completed the offer?</source>
        <translation>هل مرت أكثر من 24 ساعة على إكمال العرض؟</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
</context>
<context>
    <name>QVOfferUICollectionViewCell</name>
    <message>
        <source>%1, %2, %3</source>
        <comment>an offer: its name, its task, its payout</comment>
        <translation>%1، %2، %3</translation>
    </message>
    <message>
        <source>Earn %1</source>
        <translation>اكسب %1</translation>
    </message>
</context>
<context>
    <name>QVOffersViewController</name>
    <message>
        <source>Loading offers…</source>
        <translation>جارٍ تحميل العروض…</translation>
    </message>
    <message>
        <source>No offers right now</source>
        <translation>لا توجد عروض حاليًا</translation>
    </message>
    <message>
        <source>New ways to earn arrive often. Check back soon.</source>
        <translation>تصل طرق جديدة للربح باستمرار. عد قريبًا.</translation>
    </message>
    <message>
        <source>Couldn&apos;t load offers</source>
        <translation>تعذر تحميل العروض</translation>
    </message>
    <message>
        <source>Check your connection and try again.</source>
        <translation>تحقق من اتصالك وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Try loading the offers again</source>
        <translation>إعادة تحميل العروض</translation>
    </message>
    <message>
        <source>Close the offers</source>
        <translation>إغلاق العروض</translation>
    </message>
    <message>
        <source>Help and support</source>
        <translation>المساعدة والدعم</translation>
    </message>
    <message>
        <source>Sort and filter offers</source>
        <translation>ترتيب العروض وتصفيتها</translation>
    </message>
    <message>
        <source>Earn %1</source>
        <translation>اربح %1</translation>
    </message>
    <message>
        <source>No Connection</source>
        <translation>لا يوجد اتصال</translation>
    </message>
    <message>
        <source> Please check your internet and try again.</source>
        <translation> يرجى التحقق من اتصالك بالإنترنت والمحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Sort/Filter Offers</source>
        <translation>ترتيب/تصفية</translation>
    </message>
    <message>
        <source>Corvel Support</source>
        <translation>دعم Corvel</translation>
    </message>
    <message>
        <source>Offers</source>
        <translation>العروض</translation>
    </message>
    <message numerus="yes">
        <source>%n offers</source>
        <translation>
            <numerusform>لا عروض</numerusform>
            <numerusform>عرض واحد</numerusform>
            <numerusform>عرضان</numerusform>
            <numerusform>%n عروض</numerusform>
            <numerusform>%n عرضًا</numerusform>
            <numerusform>%n عرض</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>minus %1 %2</source>
        <translation>ناقص %1 %2</translation>
    </message>
</context>
<context>
    <name>QVQuestionCollectionViewCell</name>
    <message>
        <source>Shows the answer</source>
        <translation>يعرض الإجابة</translation>
    </message>
</context>
<context>
    <name>QVSupportPopover</name>
    <message>
        <source>Corvel Support</source>
        <translation>دعم Corvel</translation>
    </message>
    <message>
        <source>Close support</source>
        <translation>إغلاق الدعم</translation>
    </message>
</context>
<context>
    <name>QVSupportSendButtonView</name>
    <message>
        <source>Send</source>
        <translation>إرسال</translation>
    </message>
    <message>
        <source>Send the message</source>
        <translation>إرسال الرسالة</translation>
    </message>
</context>
<context>
    <name>QVSupportViewController</name>
    <message>
        <source>FAQ</source>
        <translation>الأسئلة</translation>
    </message>
    <message>
        <source>History</source>
        <translation>السجل</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>اتصل بنا</translation>
    </message>
    <message>
        <source>Support sections</source>
        <translation>أقسام الدعم</translation>
    </message>
</context>
<context>
    <name>QVTransactionCollectionViewCell</name>
    <message>
        <source>Credited</source>
        <translation>تمت الإضافة</translation>
    </message>
    <message>
        <source>%1, %2, credited %3</source>
        <comment>a credit: the offer, the amount, when</comment>
        <translation>%1، %2، أضيف في %3</translation>
    </message>
</context>
<context>
    <name>QVUnableToAssist</name>
    <message>
        <source>Rewards can take up to 24 hours</source>
        <translation>قد تستغرق المكافآت حتى 24 ساعة</translation>
    </message>
    <message>
        <source>Please check back tomorrow; we can&apos;t look into it sooner.</source>
        <translation>يرجى العودة غدًا؛ لا يمكننا التحقق قبل ذلك.</translation>
    </message>
</context>
<context>
    <name>TicketFormCheck</name>
    <message>
        <source>Please enter a valid name</source>
        <translation>يرجى إدخال اسم صحيح</translation>
    </message>
    <message>
        <source>Please enter a valid email</source>
        <translation>يرجى إدخال بريد إلكتروني صحيح</translation>
    </message>
    <message>
        <source>Please enter a valid offer name</source>
        <translation>يرجى إدخال اسم عرض صحيح</translation>
    </message>
    <message>
        <source>Please enter a date</source>
        <translation>يرجى إدخال تاريخ</translation>
    </message>
    <message>
        <source>Please provide additional comments</source>
        <translation>يرجى إضافة مزيد من التفاصيل</translation>
    </message>
</context>
</TS>
