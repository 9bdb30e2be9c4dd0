#pragma once
#include "platform/FtpSession.h"

/// What every session without a real server has in common: it is never busy, and login and logout only change its
/// state.
class QuietSession : public FtpSession {
public:
    int State() const override { return state; }
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
        state = value;
        if (onState)
            onState(value);
    }

private:
    int state = Closed;
};
