"""Reads a recording: python3 read_recording.py FILE prints what is known of it and a checksum of each frame."""
import ctypes, json, struct, sys, zlib


def unpack(row, bits, count):
    """Samples of that many bits, the first in the lowest ones, as bytes of 16-bit words."""
    packed = int.from_bytes(row, "little")
    return b"".join((packed >> bits * i & (1 << bits) - 1).to_bytes(2, "little") for i in range(count))


def read(path):
    """The information, and each frame as (running number, time in ns, rows of pixels without gaps)."""
    data = open(path, "rb").read()
    storage, width, height, samples, word, depth = struct.unpack_from("<HIIHHH", data, 10)
    assert data[:8] == b"ZELREC\x1a\n" and zlib.crc32(data[:28]) == struct.unpack_from("<I", data, 28)[0]
    info, frames, at = {}, [], 64
    while at + 40 <= len(data):
        kind, check, size, index, number, time, head = struct.unpack_from("<4sIQIIqI", data, at)
        payload = data[at + 40 : at + 40 + size]
        if zlib.crc32(data[at : at + 32]) != head or len(payload) < size or zlib.crc32(payload) != check:
            break  # the file was cut off here
        if kind == b"INFO":
            info = json.loads(payload)
        elif kind == b"FRAM":
            if storage == 1:
                pixels = ctypes.create_string_buffer(width * height * samples * word // 8)
                ctypes.CDLL("libzstd.so.1").ZSTD_decompress(pixels, ctypes.c_size_t(len(pixels)), payload, ctypes.c_size_t(size))
                payload = pixels.raw
            elif storage == 2 and depth < word:
                step = (width * samples * depth + 7) // 8
                payload = b"".join(unpack(payload[y * step : (y + 1) * step], depth, width * samples) for y in range(height))
            frames.append((number, time, payload))
        at += (40 + size + 7) // 8 * 8
    return info, frames


if __name__ == "__main__":
    known, pictures = read(sys.argv[1])
    print(json.dumps(known, sort_keys=True))
    for number, time, pixels in pictures:
        print(number, time, zlib.crc32(pixels))
