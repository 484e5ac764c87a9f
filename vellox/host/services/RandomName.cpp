#include "vellox/host/services/RandomName.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace vellox::host {

// One call to the system, and nothing to be seeded by hundreds of them, kept, or shared with a forked process.
boost::uuids::uuid drawUuid() {
    return boost::uuids::random_generator_pure()();
}

std::string makeRandomName() {
    return to_string(drawUuid());
}

} // namespace vellox::host
