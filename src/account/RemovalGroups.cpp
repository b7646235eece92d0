#include "account/RemovalGroups.h"

namespace loom
{

const QStringList& RemovalGroups::stylist()
{
    static const QStringList names{QStringLiteral("lst_guide_token"), QStringLiteral("lst_mira_chat_cache"),
                                   QStringLiteral("lst_mira_topics")};
    return names;
}

const QStringList& RemovalGroups::account()
{
    static const QStringList names{QStringLiteral("lst_support_visitor_token"),
                                   QStringLiteral("lst_support_chat_cache"),
                                   QStringLiteral("lst_hidden_orders"),
                                   QStringLiteral("lst_hidden_rmas"),
                                   QStringLiteral("lst_notifications_state"),
                                   QStringLiteral("snap-mylst"),
                                   QStringLiteral("snap-profile"),
                                   QStringLiteral("snap-notifications"),
                                   QStringLiteral("snap-orders"),
                                   QStringLiteral("snap-membership"),
                                   QStringLiteral("snap-vessa-profile"),
                                   QStringLiteral("snap-vessa-inbox"),
                                   QStringLiteral("snap-vessa-foryou"),
                                   QStringLiteral("lst_my_pieces"),
                                   QStringLiteral("lst_looks"),
                                   QStringLiteral("lst_studio_state"),
                                   QStringLiteral("lst_closet_model"),
                                   QStringLiteral("lst_outfit_advice_daily")};
    return names;
}

const QStringList& RemovalGroups::shopper()
{
    static const QStringList names{QStringLiteral("lst_wishlist"),        QStringLiteral("lst_recently_viewed"),
                                   QStringLiteral("lst_followed_brands"), QStringLiteral("vessa-note-history"),
                                   QStringLiteral("vessa-compose-draft"), QStringLiteral("vessa-recent-searches")};
    return names;
}

} // namespace loom
