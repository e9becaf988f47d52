// SPDX-License-Identifier: MIT
/** Exercises and the games of slides: sorting, connecting, judging, comparing and reading aloud. */
const Games = (() => {
  function shuffled(list) {
    const result = [...list];
    for (let i = result.length - 1; i > 0; --i) {
      const j = Math.floor(Math.random() * (i + 1));
      [result[i], result[j]] = [result[j], result[i]];
    }
    return result;
  }

  const verdict = (isRight) => (isRight ? Words.text('right') : Words.text('wrong'));

  /** Counts what is right and wrong, and shows it. */
  class Score {
    constructor(total) {
      this.total = total;
      this.element = Stage.make('p', { className: 'score', set: { 'aria-live': 'polite' } });
      this.reset();
    }

    reset() {
      this.right = 0;
      this.wrong = 0;
      this.show();
    }

    count(isRight) {
      this[isRight ? 'right' : 'wrong'] += 1;
      this.show();
    }

    show() {
      this.element.textContent = Words.text('Right: %1 of %2. Wrong: %3.', this.right, this.total, this.wrong);
    }
  }

  /** Shows for a moment that something was wrong. */
  function flash(element) {
    element.classList.add('wrong');
    setTimeout(() => element.classList.remove('wrong'), 900);
  }

  /**
   * A button that is chosen by a click or dragged to a target: the targets are found by targetAt(x, y), and
   * put(piece, target) is called with what was chosen. It goes with the pointer, or follow(piece, event) is called as
   * the pointer goes, and without an event at the end.
   */
  function makePiece(text, board, put, follow) {
    let isDragged = false;
    const piece = Stage.button(text, text, () => isDragged || board.choose(piece), { className: 'piece' });
    piece.addEventListener('pointerdown', (event) => {
      if (piece.disabled || event.button !== 0) {
        return;
      }
      const from = { x: event.clientX, y: event.clientY };
      isDragged = false;
      piece.setPointerCapture(event.pointerId);
      const move = (next) => {
        isDragged = isDragged || Math.hypot(next.clientX - from.x, next.clientY - from.y) > 4;
        if (follow) {
          follow(piece, next);
          return;
        }
        piece.classList.add('dragged');
        piece.style.transform = `translate(${next.clientX - from.x}px, ${next.clientY - from.y}px)`;
      };
      const end = (last) => {
        piece.removeEventListener('pointermove', move);
        piece.removeEventListener('pointerup', end);
        piece.removeEventListener('pointercancel', end);
        if (follow) {
          follow(piece);
        }
        piece.style.transform = '';
        piece.classList.remove('dragged');
        const target = document.elementsFromPoint(last.clientX, last.clientY)
          .map((element) => element.closest('[data-target]')).find((one) => one && one !== piece);
        if (isDragged && target && !target.disabled && last.type === 'pointerup') {
          put(piece, target);
        }
        setTimeout(() => { isDragged = false; }); // behind the click that a drag ends with
      };
      piece.addEventListener('pointermove', move);
      piece.addEventListener('pointerup', end);
      piece.addEventListener('pointercancel', end);
    });
    return piece;
  }

  /** Which piece is chosen, for those who don't drag. */
  class Board {
    choose(piece) {
      const isSame = this.chosen === piece;
      if (this.chosen) {
        this.chosen.setAttribute('aria-pressed', 'false');
      }
      this.chosen = isSame ? null : piece;
      if (this.chosen) {
        piece.setAttribute('aria-pressed', 'true');
      }
    }
  }

  /** Pieces go into boxes. boxes: [{name, right}], pieces: [{id, text}]; right holds identifiers of pieces. */
  function sorting({ boxes, pieces }) {
    const total = pieces.filter((piece) => boxes.some((box) => box.right.includes(piece.id))).length;
    const score = new Score(total);
    const area = Stage.make('div', { className: 'sorting' });
    const start = () => {
      const board = new Board();
      const ids = new Map();
      const rights = new Map();
      const put = (piece, target) => {
        const isRight = rights.get(target).includes(ids.get(piece));
        score.count(isRight);
        Stage.say(Words.text('%1: %2', piece.textContent, verdict(isRight)));
        if (isRight) {
          piece.classList.add('right');
          piece.disabled = true;
          target.querySelector('.content').append(piece);
        } else {
          flash(piece);
          flash(target);
        }
        if (board.chosen) {
          board.choose(board.chosen);
        }
      };
      const targets = boxes.map((box) => {
        const target = Stage.make('div', { className: 'box', set: { 'data-target': '' } },
          Stage.button(box.name, Words.text('Put it into %1', box.name),
            () => board.chosen && put(board.chosen, target)),
          Stage.make('div', { className: 'content' }));
        target.addEventListener('click', (event) => {
          if (!event.target.closest('button') && board.chosen) {
            put(board.chosen, target);
          }
        });
        rights.set(target, box.right);
        return target;
      });
      const made = shuffled(pieces).map((piece) => {
        const element = makePiece(piece.text, board, put);
        ids.set(element, piece.id);
        return element;
      });
      score.reset();
      area.replaceChildren(Stage.make('div', { className: 'boxes' }, ...targets),
        Stage.make('div', { className: 'pieces' }, ...made));
    };
    start();
    return { contents: [area, score.element], restart: start };
  }

  /** Lines between what belongs together: drawn from one to the other, or both are chosen, in either order. */
  function connecting(pairs) {
    const score = new Score(pairs.length);
    const area = Stage.make('div', { className: 'connecting' });
    const start = () => {
      const board = new Board();
      const numbers = [new Map(), new Map()]; // of the pieces of each column
      const lines = Stage.makeSvg('svg', { class: 'lines', 'aria-hidden': 'true' });
      const drawn = Stage.makeSvg('line', { class: 'drawn' });
      const columnOf = (piece) => (numbers[0].has(piece) ? 0 : 1);
      /** Where lines begin: at the edge that is next to the other column. */
      const endOf = (piece) => {
        const around = area.getBoundingClientRect();
        const box = piece.getBoundingClientRect();
        const x = columnOf(piece) === 0 ? box.right : box.left;
        return { x: x - around.left, y: box.top + box.height / 2 - around.top };
      };
      const draw = (line, from, to) => {
        Object.entries({ x1: from.x, y1: from.y, x2: to.x, y2: to.y })
          .forEach(([name, value]) => line.setAttribute(name, value));
        lines.append(line);
      };
      const follow = (piece, event) => {
        if (!event) {
          drawn.remove();
          return;
        }
        const around = area.getBoundingClientRect();
        draw(drawn, endOf(piece), { x: event.clientX - around.left, y: event.clientY - around.top });
      };
      const put = (piece, target) => {
        if (columnOf(piece) === columnOf(target)) {
          return;
        }
        const [one, other] = [piece, target].map((end) => pairs[numbers[columnOf(end)].get(end)][1]);
        const isRight = one === other;
        score.count(isRight);
        Stage.say(verdict(isRight));
        if (isRight) {
          draw(Stage.makeSvg('line'), endOf(piece), endOf(target));
          [piece, target].forEach((end) => { end.classList.add('right'); end.disabled = true; });
        } else {
          flash(piece);
          flash(target);
        }
        if (board.chosen) {
          board.choose(board.chosen);
        }
      };
      const choose = (piece) => {
        if (board.chosen && columnOf(board.chosen) !== columnOf(piece)) {
          put(board.chosen, piece);
        } else {
          board.choose(piece);
        }
      };
      const makeColumn = (column, order) => Stage.make('div', { className: 'column' }, ...order.map((i) => {
        const piece = makePiece(pairs[i][column], { choose }, put, follow);
        piece.setAttribute('data-target', '');
        numbers[column].set(piece, i);
        return piece;
      }));
      const order = pairs.map((pair, i) => i);
      score.reset();
      area.replaceChildren(lines, makeColumn(0, order), makeColumn(1, shuffled(order)));
    };
    start();
    return { contents: [area, score.element], restart: start };
  }

  /** Whether an answer says yes, as it is written. */
  const isTrue = (text) => /^(true|1|yes|right|t|y|√|对|正确)$/i.test(String(text).trim());

  /** One after the other, each answered by one of some buttons: rounds: [{text, answers, right}]. */
  function rounds(list) {
    const score = new Score(list.length);
    const text = Stage.make('p', { className: 'statement' });
    const answers = Stage.make('div', { className: 'buttons' });
    let at = 0;
    const show = () => {
      if (at >= list.length) {
        text.textContent = Words.text('That was the last one.');
        answers.replaceChildren();
        return;
      }
      text.textContent = list[at].text;
      answers.replaceChildren(...list[at].answers.map((answer) => Stage.button(answer, answer, () => {
        const isRight = answer === list[at].right;
        score.count(isRight);
        Stage.say(verdict(isRight));
        text.classList.toggle('right', isRight);
        text.classList.toggle('wrong', !isRight);
        answers.querySelectorAll('button').forEach((one) => { one.disabled = true; });
        setTimeout(() => { ++at; text.classList.remove('right', 'wrong'); show(); }, 900);
      })));
    };
    const restart = () => { at = 0; score.reset(); show(); };
    restart();
    return { contents: [text, answers, score.element], restart };
  }

  /** Texts to be read aloud, one after the other. */
  function reading(texts) {
    const text = Stage.make('p', { className: 'statement' });
    let at = 0;
    const show = () => { text.textContent = texts[at]; };
    const go = (step) => { at = Math.min(Math.max(at + step, 0), texts.length - 1); show(); };
    const moves = Stage.make('div', { className: 'buttons' },
      Stage.button(Words.text('Previous'), Words.text('Previous text'), () => go(-1)),
      Stage.button(Words.text('Next'), Words.text('Next text'), () => go(1)));
    show();
    return { contents: [text, moves], restart: () => { at = 0; show(); } };
  }

  /** A comparison has terms and, between them, a symbol that is asked for. */
  function comparison(rows) {
    const right = (rows.find((row) => row.symbol) || {}).symbol;
    return {
      text: rows.map((row) => row.condition || '…').join('  '),
      answers: ['<', '=', '>'],
      right: String(right || '').trim(),
    };
  }

  const texts = (entry) => (entry.materials || []).map((one) => ({ id: one.id, text: one.txt }));

  /** The box of an entry, and the identifiers of what belongs into it. */
  function boxOf(entry) {
    const { id, txt } = entry.container || {};
    const told = (entry.answers || []).flatMap((group) => group[id] || []);
    return { name: txt || id, right: told.length > 0 ? told : texts(entry).map((piece) => piece.id) };
  }

  function matching(activity) {
    const entries = [...activity.matchs, ...(activity.unmatchs || [])];
    return sorting({ boxes: activity.matchs.map(boxOf), pieces: entries.flatMap(texts) });
  }

  /** The game of a slide's activity, by the form of its entries; null for one that says nothing. */
  function gameOf(activity) {
    const entries = (activity && activity.matchs) || [];
    if (entries.length === 0) {
      return null;
    }
    const first = entries[0];
    if (typeof first === 'string') {
      return () => reading(entries);
    }
    if (Array.isArray(first)) {
      return () => rounds(entries.map(comparison));
    }
    if (first.question !== undefined) {
      const [yes, no] = [Words.text('True'), Words.text('False')];
      return () => rounds(entries.map((entry) => ({
        text: entry.question, answers: [yes, no], right: isTrue(entry.answer) ? yes : no,
      })));
    }
    return first.container ? () => matching(activity) : null;
  }

  function open(title, makeGame) {
    const game = makeGame();
    const again = Stage.make('div', { className: 'buttons' }, 
      Stage.button(Words.text('Start again'), Words.text('Start again'), game.restart));
    Stage.tell(title, [...game.contents, again]).classList.add('game');
  }

  const exercises = {
    sorting: ({ boxes }) => sorting({
      boxes: boxes.map((box, i) => ({ name: box.name, right: box.items.map((text, j) => `${i} ${j}`) })),
      pieces: boxes.flatMap((box, i) => box.items.map((text, j) => ({ id: `${i} ${j}`, text }))),
    }),
    pairs: ({ pairs }) => connecting(pairs),
  };

  /** Called when a slide is there for the first time: an exercise opens where it stands. */
  function prepare(slide) {
    slide.items.filter((item) => item.tool && exercises[item.tool.kind]).forEach((item) => {
      slide.elements(item.id).forEach((element) => {
        Stage.enliven(element, 'button', item.label);
        const make = () => exercises[item.tool.kind](item.tool);
        Stage.onActivate(element, () => open(item.tool.title || item.label, make));
      });
    });
  }

  const scores = new Map(); // of slides whose pieces are put into baskets

  /**
   * Whether a piece of a slide belongs into a basket, as its game tells by their texts, and counts it. Null where the
   * game doesn't know the basket.
   */
  function judge(slide, pieceText, basketText) {
    const activity = slide.play.activity || {};
    const entries = (activity.matchs || []).filter((entry) => entry.container && entry.container.txt === basketText);
    if (entries.length === 0) {
      return null;
    }
    const pieces = [...activity.matchs, ...(activity.unmatchs || [])].flatMap((entry) => entry.materials || []);
    const right = entries.flatMap((entry) => boxOf(entry).right);
    const isRight = pieces.some((one) => one.txt === pieceText && right.includes(one.id));
    if (!scores.has(slide)) {
      const score = new Score(slide.items.filter((one) => one.tool && one.tool.kind === 'piece').length);
      scores.set(slide, score);
      const height = slide.height * 0.07;
      Stage.place(score.element, slide, { x: slide.width * 0.62, y: 0, width: slide.width * 0.38, height });
    }
    scores.get(slide).count(isRight);
    return isRight;
  }

  function resetScore(slide) {
    if (scores.has(slide)) {
      scores.get(slide).reset();
    }
  }

  /** What opens the game of a slide, or null where it has none. */
  function ofSlide(slide) {
    const game = gameOf(slide.play.activity);
    return game ? () => open(slide.play.activity.title || Words.text('Game'), game) : null;
  }

  return { prepare, ofSlide, judge, resetScore };
})();
