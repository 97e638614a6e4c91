#include "AlertSound.h"

#include "LibrarySymbol.h"

#include <canberra.h>

#include <memory>

namespace
{

class Player
{
public:
    Player() : m_library(QStringLiteral("canberra"), 0)
    {
        ca_context *context = nullptr;
        if (resolveSymbol(m_library, "ca_context_create", m_create)
            && resolveSymbol(m_library, "ca_context_play", m_play)
            && resolveSymbol(m_library, "ca_context_destroy", m_destroy)
            && m_create(&context) == CA_SUCCESS)
            m_context = context;
    }
    ~Player()
    {
        if (m_context)
            m_destroy(m_context);
    }
    Player(const Player &) = delete;
    Player &operator=(const Player &) = delete;

    void playAlert() const
    {
        if (m_context)
            m_play(m_context, 0, CA_PROP_EVENT_ID, "bell", CA_PROP_MEDIA_ROLE, "event", nullptr);
    }

private:
    QLibrary m_library;
    decltype(ca_context_create) *m_create = nullptr;
    decltype(ca_context_play) *m_play = nullptr;
    decltype(ca_context_destroy) *m_destroy = nullptr;
    ca_context *m_context = nullptr;
};

} // namespace

void AlertSound::play()
{
    static const Player player;
    player.playAlert();
}
