#pragma once

namespace workstation {

/// Sends what the toolkit has to say to stderr, without what it says of its surroundings and a user
/// can do nothing about. Before a QApplication is made.
void FilterToolkitMessages();

}
