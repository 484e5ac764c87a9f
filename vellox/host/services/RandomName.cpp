#include "vellox/host/services/RandomName.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace vellox::host {

// From the system each time: most decks take a handful, and to seed a generator of one's own takes hundreds of calls.
boost::uuids::uuid drawUuid() {
    return boost::uuids::random_generator_pure()();
}

std::string makeRandomName() {
    return to_string(drawUuid());
}

} // namespace vellox::host
