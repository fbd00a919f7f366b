// Changes of the region, heard from the application.

#include "settings/RegionNotifier.h"

#include "settings/LocaleChangeFilter.h"

namespace zel::utility::i18n {

RegionNotifier::RegionNotifier(QObject* receiver, const char* member, QObject* parent) : QObject(parent)
{
    LocaleChangeFilter::call(receiver, member, this);
}

} // namespace zel::utility::i18n
