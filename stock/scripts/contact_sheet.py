#!/usr/bin/python3
"""Shows all stock images on a checkerboard, with their names, to judge them at a glance."""

import argparse
import pathlib

from PIL import Image, ImageDraw, ImageFont

STOCK = pathlib.Path(__file__).resolve().parent.parent
WIDTH, CAPTION, CHECK = 1280, 18, 16
SMALL, LARGE = (256, 256), (640, 360)


def checkerboard(width, height):
    board = Image.new("RGB", (width, height), (150, 150, 150))
    draw = ImageDraw.Draw(board)
    for y in range(0, height, CHECK):
        for x in range((y // CHECK % 2) * CHECK, width, 2 * CHECK):
            draw.rectangle((x, y, x + CHECK - 1, y + CHECK - 1), fill=(110, 110, 110))
    return board


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("output", type=pathlib.Path, help="the PNG file to write")
    parser.add_argument("--only", default="", help="only the images whose path holds this text")
    arguments = parser.parse_args()

    pictures = [(path.relative_to(STOCK), Image.open(path).convert("RGBA")) for path in sorted(STOCK.rglob("*.png"))
                if arguments.only in str(path.relative_to(STOCK))]
    places, x, y, row = [], 0, 0, 0
    for _, picture in pictures:
        cell = SMALL if picture.width <= SMALL[0] else LARGE
        if x + cell[0] > WIDTH or (x and cell[1] + CAPTION != row):
            x, y = 0, y + row
        row = cell[1] + CAPTION
        places.append((x, y, cell))
        x += cell[0]

    sheet = checkerboard(WIDTH, y + row)
    draw = ImageDraw.Draw(sheet)
    for (name, picture), (x, y, (width, height)) in zip(pictures, places):
        picture.thumbnail((width, height), Image.LANCZOS)
        sheet.paste(picture, (x + (width - picture.width) // 2, y + (height - picture.height) // 2), picture)
        draw.rectangle((x, y + height, x + width - 1, y + height + CAPTION - 1), fill=(30, 30, 30))
        draw.text((x + 6, y + height + 3), str(name), fill=(255, 255, 255), font=ImageFont.load_default())
    sheet.save(arguments.output)


if __name__ == "__main__":
    main()
