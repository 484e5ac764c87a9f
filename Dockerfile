# An image of Debian 12 with the command and the Python package; docs/installing.md tells how it is used.

FROM debian:12-slim AS build
COPY . /vellox
WORKDIR /vellox
RUN scripts/install-packages build cli python
RUN cmake --preset package -D CMAKE_INSTALL_PREFIX=/usr/local -D VELLOX_EXAMPLES=OFF && cmake --build --preset package
RUN for component in runtime tools python; do \
        DESTDIR=/image cmake --install build/package --strip --component $component; \
    done

FROM debian:12-slim
RUN apt-get update && \
    apt-get install -y --no-install-recommends libdeflate0 libfontconfig1 libfreetype6 libicu72 librsvg2-2 libstb0 libtiff6 \
        libxlsxwriter4 libyaml-cpp0.7 libzip4 python3 && \
    rm -rf /var/lib/apt/lists/*
COPY --from=build /image /
RUN ldconfig
WORKDIR /work
ENTRYPOINT ["vellox"]
