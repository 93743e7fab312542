#pragma once

namespace sweeps {

class CExpectation;

/// The wait cursor is shown for the length of the scope.
class CExpectedCursor {
public:
    explicit CExpectedCursor(CExpectation& panel);
    ~CExpectedCursor();
    CExpectedCursor(const CExpectedCursor&) = delete;
    CExpectedCursor& operator=(const CExpectedCursor&) = delete;

private:
    CExpectation& m_panel;
};

/// The calls in it are those of a refresh or of a listing.
class CPartOfRefresh {
public:
    explicit CPartOfRefresh(CExpectation& panel);
    ~CPartOfRefresh();
    CPartOfRefresh(const CPartOfRefresh&) = delete;
    CPartOfRefresh& operator=(const CPartOfRefresh&) = delete;

private:
    CExpectation& m_panel;
};

/// The host does not poll for phones from the suspension to the end of the scope, and polls
/// thereafter if it did before.
class CExpectedPolling {
public:
    enum class Suspended { AtOnce, OnRequest };

    CExpectedPolling(CExpectation& panel, Suspended suspended);
    ~CExpectedPolling();
    CExpectedPolling(const CExpectedPolling&) = delete;
    CExpectedPolling& operator=(const CExpectedPolling&) = delete;

    void Suspend();

private:
    bool QueryControl();

    CExpectation& m_panel;
    bool m_hasDetection = false;
    bool m_wasPolling = false;
};

}
