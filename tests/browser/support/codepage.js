const HIGH = '€\x81‚ƒ„…†‡ˆ‰Š‹Œ\x8dŽ\x8f\x90‘’“”•–—˜™š›œ\x9džŸ';

/** Bytes of a page or of a form as text. Node's own decoder of this name takes 0x80 to 0x9F for control signs in
    some versions. */
export function windows1252(bytes) {
  return Buffer.from(bytes).toString('latin1').replace(/[\x80-\x9f]/g, sign => HIGH[sign.charCodeAt(0) - 0x80]);
}
