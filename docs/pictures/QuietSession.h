#pragma once
#include "platform/FtpSession.h"

/// What sessions without a real server have in common: they are never busy, and a logout only changes their state.
class QuietSession : public FtpSession {
public:
    int State() const override { return m_state; }
    bool Busy() const override { return false; }
    Result RestartSupported(bool &supported) override
    {
        supported = true;
        return {};
    }
    Result Logout() override
    {
        setState(Closed);
        return {};
    }
    void Close() override { setState(Closed); }
    void Abort() override {}

protected:
    void setState(int value)
    {
        m_state = value;
        if (onState)
            onState(value);
    }

private:
    int m_state = Closed;
};
