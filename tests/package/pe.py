"""What a 32-bit Windows program says about itself: headers, imports and resources."""
import struct

IMPORTS, RESOURCES, RELOCATIONS = 1, 2, 5  # places in the data directory

RT_VERSION, RT_MANIFEST = 16, 24


class Image:
    """The program in `file`. ValueError when that is no 32-bit image."""

    def __init__(self, file):
        with open(file, "rb") as program:
            self.data = program.read()
        start, = struct.unpack_from("<I", self.data, 60)
        if self.data[:2] != b"MZ" or self.data[start:start + 4] != b"PE\0\0":
            raise ValueError("not a Windows program")
        self.machine, sections, optional_size, self.characteristics = struct.unpack_from(
            "<HH12xHH", self.data, start + 4)
        optional = start + 24
        magic, = struct.unpack_from("<H", self.data, optional)
        if magic != 0x10B:
            raise ValueError("not a 32-bit program")
        self.subsystem, self.dll_characteristics = struct.unpack_from("<HH", self.data, optional + 68)
        count, = struct.unpack_from("<I", self.data, optional + 92)
        self.directory = list(struct.iter_unpack(
            "<II", self.data[optional + 96:optional + 96 + 8 * count]))
        table = optional + optional_size
        #                 name, virtual size, address, raw size, raw offset
        self.sections = [struct.unpack_from("<8sIIII", self.data, table + 40 * i) for i in range(sections)]

    def offset(self, address):
        """Where in the file the byte at `address`, relative to the image, stands."""
        for _, size, start, raw_size, raw_offset in self.sections:
            if start <= address < start + max(size, raw_size):
                return raw_offset + address - start
        raise ValueError(f"address {address:#x} is in no section")

    def text(self, address):
        start = self.offset(address)
        return self.data[start:self.data.index(b"\0", start)].decode("ascii")

    def imported_libraries(self):
        libraries, at = set(), self.offset(self.directory[IMPORTS][0])
        while True:
            lookup, _, _, name, _ = struct.unpack_from("<5I", self.data, at)
            if name == 0 and lookup == 0:
                return libraries
            libraries.add(self.text(name).lower())
            at += 20

    def relocations(self):
        """The number of addresses that the loader can adjust."""
        address, size = self.directory[RELOCATIONS]
        if address == 0:
            return 0
        at, count = self.offset(address), 0
        end = at + size
        while at < end:
            _, block = struct.unpack_from("<II", self.data, at)
            count += (block - 8) // 2
            at += block
        return count

    def resource(self, kind, name=1):
        """The bytes of a resource in its first language."""
        root = self.offset(self.directory[RESOURCES][0])
        at = root
        for number in (kind, name, None):
            named, by_id = struct.unpack_from("<HH", self.data, at + 12)
            entries = struct.iter_unpack("<II", self.data[at + 16:at + 16 + 8 * (named + by_id)])
            at = root + next(target & 0x7FFFFFFF for key, target in entries
                             if number is None or key == number)
        address, size = struct.unpack_from("<II", self.data, at)
        return self.data[self.offset(address):self.offset(address) + size]


def version_blocks(data):
    """The blocks of a version resource, one after the other: key, value, whether it is text."""
    at = 0
    while at + 6 <= len(data):
        length, value_length, is_text = struct.unpack_from("<HHH", data, at)
        if length == 0:
            return
        block = data[at:at + length]
        key_end = 6
        while block[key_end:key_end + 2] != b"\0\0":
            key_end += 2
        key = block[6:key_end].decode("utf-16-le")
        value_at = (key_end + 2 + 3) & ~3
        value_end = value_at + value_length * (2 if is_text else 1)
        yield key, block[value_at:value_end], bool(is_text)
        yield from version_blocks(block[(value_end + 3) & ~3:])
        at += (length + 3) & ~3
